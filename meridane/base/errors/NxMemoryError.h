#pragma once

#include "meridane/base/errors/NxError.h"

#include <cstddef>

/// A request for memory that failed.
class NxMemoryError : public NxError {
public:
    /// `file` and `line` are the source position of the request, `file` null when it is unknown; `size` is in bytes.
    NxMemoryError(const char* file, int line, std::size_t size);

    [[nodiscard]] NxType getTypeId() const override;
    [[nodiscard]] static NxType getClassTypeId();

    /// The size of the request in bytes.
    [[nodiscard]] std::size_t getSize() const { return m_size; }

    // The handler of this class, as in NxError.
    [[nodiscard]] static NxErrorHandler getHandlerCallback();
    [[nodiscard]] static void* getHandlerData();
    static void setHandlerCallback(NxErrorHandler callback, void* data);

    static void post(const char* file, int line, std::size_t size);

private:
    std::size_t m_size;
};
