#include "meridane/gl/painting/detail/LinePainter.h"

#include "meridane/gl/geometry/MatrixMath.h"

#include <array>
#include <cstddef>

namespace meridane {
namespace {

constexpr const char* lineVertexSource = R"(
layout(location = 0) in vec3 position;
layout(location = 1) in vec4 color;
uniform mat4 eyeToClip;
out vec4 lineColor;
void main()
{
    lineColor = color;
    gl_Position = eyeToClip * vec4(position, 1.0);
}
)";

constexpr const char* lineFragmentSource = R"(
in vec4 lineColor;
out vec4 pictureColor;
void main()
{
    pictureColor = lineColor;
}
)";

} // namespace

LinePainter::~LinePainter()
{
    m_gl.DeleteVertexArrays(1, &m_vertexArray);
    m_gl.DeleteBuffers(1, &m_buffer);
}

void LinePainter::add(const VbVec3f& from, const VbVec3f& to, const VbColorRGBA& fromColor, const VbColorRGBA& toColor)
{
    m_vertices.push_back({from, fromColor});
    m_vertices.push_back({to, toColor});
}

void LinePainter::addBox(const NxBounds& box, const Matrix4d& transform, const VbColorRGBA& color)
{
    std::array<VbVec3f, 8> corners;
    for (unsigned int i = 0; i < corners.size(); ++i) {
        const VbVec3f corner((i & 1U) != 0 ? box.max[0] : box.min[0], (i & 2U) != 0 ? box.max[1] : box.min[1],
            (i & 4U) != 0 ? box.max[2] : box.min[2]);
        corners[i] = narrowed(transformPoint(corner, transform));
    }
    // Corners whose numbers differ in one bit are the ends of a side.
    for (unsigned int i = 0; i < corners.size(); ++i) {
        for (unsigned int bit = 1; bit < corners.size(); bit *= 2) {
            if ((i & bit) == 0)
                add(corners[i], corners[i | bit], color, color);
        }
    }
}

void LinePainter::prepare()
{
    m_program = GLProgram(m_gl, "lines", lineVertexSource, lineFragmentSource);
    m_eyeToClip = m_program.isUsable() ? m_program.uniform("eyeToClip") : -1;
    m_gl.GenVertexArrays(1, &m_vertexArray);
    m_gl.GenBuffers(1, &m_buffer);
    m_gl.BindVertexArray(m_vertexArray);
    m_gl.BindBuffer(GL_ARRAY_BUFFER, m_buffer);
    m_gl.EnableVertexAttribArray(0);
    m_gl.EnableVertexAttribArray(1);
    m_gl.VertexAttribPointer(0, 3, GL_FLOAT, GL_FALSE, sizeof(Vertex), nullptr);
    m_gl.VertexAttribPointer(
        1, 4, GL_FLOAT, GL_FALSE, sizeof(Vertex), reinterpret_cast<const void*>(offsetof(Vertex, color)));
}

void LinePainter::draw(const VbMatrix& eyeToClip, NxDrawingCounts& counts)
{
    if (m_vertices.empty())
        return;
    if (!m_program.isMade())
        prepare();
    if (m_program.isUsable()) {
        m_program.use();
        m_gl.UniformMatrix4fv(m_eyeToClip, 1, GL_FALSE, eyeToClip[0].data());
        m_gl.BindVertexArray(m_vertexArray);
        m_gl.BindBuffer(GL_ARRAY_BUFFER, m_buffer);
        m_gl.BufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(m_vertices.size() * sizeof(Vertex)), m_vertices.data(),
            GL_STREAM_DRAW);
        m_gl.DrawArrays(GL_LINES, 0, static_cast<GLsizei>(m_vertices.size()));
        ++counts.drawCalls;
    }
    m_vertices.clear();
}

void LinePainter::forget()
{
    m_program.forget();
    m_vertexArray = 0;
    m_buffer = 0;
}

} // namespace meridane
