#pragma once

#include "meridane/gl/gpu/detail/GLProgram.h"

namespace meridane {

/// A program that computes each pixel of the picture by itself.
class ScreenPass {
public:
    ScreenPass(const NxGLFunctions& gl, const char* name, const char* fragmentSource)
        : m_gl(gl)
        , m_name(name)
        , m_fragmentSource(fragmentSource)
    {
    }
    ScreenPass(const ScreenPass&) = delete;
    ScreenPass& operator=(const ScreenPass&) = delete;
    /// The context must be current, or `forget` have been called.
    ~ScreenPass() { m_gl.DeleteVertexArrays(1, &m_vertexArray); }

    /// Binds the program. Returns false if it isn't usable.
    bool use();
    [[nodiscard]] int uniform(const char* name) const { return m_program.uniform(name); }
    void draw() const;
    /// To be called when the context is lost.
    void forget();

private:
    const NxGLFunctions& m_gl;
    const char* m_name;
    const char* m_fragmentSource;
    GLProgram m_program;
    unsigned int m_vertexArray = 0;
};

} // namespace meridane
