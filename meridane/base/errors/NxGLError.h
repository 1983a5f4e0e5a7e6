#pragma once

#include "meridane/base/errors/NxError.h"

/// An error that the drawing library reported.
class NxGLError : public meridane::ErrorClass<NxGLError, NxError> {
public:
    static constexpr const char* typeName = "GLError";

    /// `code` is the result of glGetError; `operation` says what was being done.
    NxGLError(unsigned int code, const VbString& operation);

    [[nodiscard]] unsigned int getCode() const { return m_code; }

    static void post(unsigned int code, const VbString& operation);

private:
    unsigned int m_code;
};

extern template class meridane::ErrorClass<NxGLError, NxError>;
