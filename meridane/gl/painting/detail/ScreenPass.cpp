#include "meridane/gl/painting/detail/ScreenPass.h"

namespace meridane {
namespace {

// One triangle that covers the picture.
constexpr const char* screenVertexSource = R"(
void main()
{
    gl_Position = vec4(gl_VertexID == 1 ? 3.0 : -1.0, gl_VertexID == 2 ? 3.0 : -1.0, 0.0, 1.0);
}
)";

} // namespace

bool ScreenPass::use()
{
    if (!m_program.isMade()) {
        m_program = GLProgram(m_gl, m_name, screenVertexSource, m_fragmentSource);
        m_gl.GenVertexArrays(1, &m_vertexArray);
    }
    if (!m_program.isUsable())
        return false;
    m_program.use();
    return true;
}

void ScreenPass::draw() const
{
    m_gl.BindVertexArray(m_vertexArray);
    m_gl.DrawArrays(GL_TRIANGLES, 0, 3);
}

void ScreenPass::forget()
{
    m_program.forget();
    m_vertexArray = 0;
}

} // namespace meridane
