#pragma once

#include "meridane/base/errors/NxError.h"

/// An error that the drawing library reported.
class NxGLError : public meridane::ErrorClass<NxGLError, NxError> {
public:
    /// The name of the run-time type.
    static constexpr const char* typeName = "GLError";

    /// `code` is the result of glGetError; `operation` says what was being done.
    NxGLError(unsigned int code, const VbString& operation);

    /// The result of glGetError.
    [[nodiscard]] unsigned int getCode() const { return m_code; }

    /// Builds an error and hands it to the handler of this class, at once and on this thread.
    static void post(unsigned int code, const VbString& operation);

private:
    unsigned int m_code;
};

extern template class meridane::ErrorClass<NxGLError, NxError>;
