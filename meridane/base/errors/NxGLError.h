#pragma once

#include "meridane/base/errors/NxError.h"

/// An error that the drawing library reported.
class NxGLError : public NxError {
public:
    /// `code` is what glGetError gave; `operation` tells what was being done.
    NxGLError(unsigned int code, const VbString& operation);

    [[nodiscard]] NxType getTypeId() const override;
    [[nodiscard]] static NxType getClassTypeId();

    [[nodiscard]] unsigned int getCode() const { return m_code; }

    // The handler of this class, as in NxError.
    [[nodiscard]] static NxErrorHandler getHandlerCallback();
    [[nodiscard]] static void* getHandlerData();
    static void setHandlerCallback(NxErrorHandler callback, void* data);

    static void post(unsigned int code, const VbString& operation);

private:
    unsigned int m_code;
};
