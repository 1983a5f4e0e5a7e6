#pragma once

#include "meridane/base/errors/NxError.h"

#include <cstddef>

/// A request for memory that failed.
class NxMemoryError : public meridane::ErrorClass<NxMemoryError, NxError> {
public:
    /// The name of the run-time type.
    static constexpr const char* typeName = "MemoryError";

    /// `file` and `line` are the source position of the request, `file` null when it is unknown; `size` is in bytes.
    NxMemoryError(const char* file, int line, std::size_t size);

    /// The size of the request in bytes.
    [[nodiscard]] std::size_t getSize() const { return m_size; }

    /// Builds an error and hands it to the handler of this class, at once and on this thread.
    static void post(const char* file, int line, std::size_t size);

private:
    std::size_t m_size;
};

extern template class meridane::ErrorClass<NxMemoryError, NxError>;
