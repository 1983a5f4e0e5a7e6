#pragma once

#include "meridane/gl/gpu/NxGLFunctions.h"

namespace meridane {

/// Binds the framebuffer of the picture again at the end of the scope.
class FramebufferScope {
public:
    explicit FramebufferScope(const NxGLFunctions& gl)
        : m_gl(gl)
    {
        m_gl.GetIntegerv(GL_DRAW_FRAMEBUFFER_BINDING, &m_picture);
    }
    FramebufferScope(const FramebufferScope&) = delete;
    FramebufferScope& operator=(const FramebufferScope&) = delete;
    ~FramebufferScope() { m_gl.BindFramebuffer(GL_FRAMEBUFFER, static_cast<GLuint>(m_picture)); }

private:
    const NxGLFunctions& m_gl;
    int m_picture = 0;
};

} // namespace meridane
