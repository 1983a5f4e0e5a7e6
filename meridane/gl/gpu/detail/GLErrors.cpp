#include "meridane/gl/gpu/detail/GLErrors.h"

#include "meridane/base/errors/NxGLError.h"

namespace meridane {

bool GLErrors::report(const std::string& operation)
{
    constexpr int most = 16; // a lost context reports errors without end
    bool isSome = false;
    for (int i = 0; i < most; ++i) {
        const GLenum error = m_gl.GetError();
        if (error == GL_NO_ERROR)
            break;
        isSome = true;
        if (m_reported.emplace(error, operation).second)
            NxGLError::post(error, VbString(operation));
    }
    return isSome;
}

} // namespace meridane
