#include "meridane/gl/painting/detail/MarkPainter.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/detail/PictureFrame.h"
#include "meridane/gl/gpu/detail/GLStateScope.h"
#include "meridane/gl/painting/NxDrawingStyle.h"

#include <algorithm>
#include <utility>

namespace meridane {
namespace {

/// From this number on, marks touch each other anyway. They are drawn smaller then, since each pixel costs time.
constexpr std::size_t manyMarks = 20'000;
constexpr float leastMarkSize = 4;

constexpr const char* markVertexSource = R"(
layout(location = 0) in vec3 position;
uniform vec3 origin;
uniform mat4 modelMatrix;
uniform mat4 eyeToClip;
uniform float size;
void main()
{
    // The difference of two numbers that are near each other is exact, however large they are.
    gl_Position = eyeToClip * (modelMatrix * vec4(position - origin, 1.0));
    gl_Position.z = 0.0; // in the picture, however far it is beyond what is drawn
    gl_PointSize = size;
}
)";

// The border takes about a third of the radius, but is at least a pixel wide.
constexpr const char* markFragmentSource = R"(
uniform float size;
uniform vec3 color;
uniform vec3 borderColor;
out vec4 pictureColor;
void main()
{
    float radius = 0.5 * size;
    float place = length(gl_PointCoord - vec2(0.5)) * size;
    float cover = clamp(radius - place + 0.5, 0.0, 1.0);
    if (cover <= 0.0)
        discard;
    float inside = clamp(radius - max(1.0, radius * 0.36) - place + 0.5, 0.0, 1.0);
    pictureColor = vec4(mix(borderColor, color, inside), cover);
}
)";

} // namespace

MarkPainter::~MarkPainter()
{
    m_gl.DeleteVertexArrays(1, &m_vertexArray);
    m_gl.DeleteBuffers(1, &m_buffer);
}

void MarkPainter::setPoints(std::vector<VbVec3f> points)
{
    m_points = std::move(points);
    m_isStale = true;
}

void MarkPainter::prepare()
{
    m_program = GLProgram(m_gl, "marks", markVertexSource, markFragmentSource);
    if (m_program.isUsable()) {
        m_origin = m_program.uniform("origin");
        m_modelMatrix = m_program.uniform("modelMatrix");
        m_eyeToClip = m_program.uniform("eyeToClip");
        m_size = m_program.uniform("size");
        m_color = m_program.uniform("color");
        m_borderColor = m_program.uniform("borderColor");
    }
    m_gl.GenVertexArrays(1, &m_vertexArray);
    m_gl.GenBuffers(1, &m_buffer);
    m_gl.BindVertexArray(m_vertexArray);
    m_gl.BindBuffer(GL_ARRAY_BUFFER, m_buffer);
    m_gl.EnableVertexAttribArray(0);
    m_gl.VertexAttribPointer(0, 3, GL_FLOAT, GL_FALSE, sizeof(VbVec3f), nullptr);
}

void MarkPainter::upload()
{
    if (!std::exchange(m_isStale, false))
        return;
    m_gl.BindBuffer(GL_ARRAY_BUFFER, m_buffer);
    m_gl.BufferData(
        GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(m_points.size() * sizeof(VbVec3f)), m_points.data(), GL_DYNAMIC_DRAW);
}

void MarkPainter::draw(
    const Matrix4d& worldTransform, const PictureFrame& frame, const NxDrawingStyle& style, NxDrawingCounts& counts)
{
    if (m_points.empty())
        return;
    if (!m_program.isMade())
        prepare();
    if (!m_program.isUsable())
        return;
    m_program.use();
    m_gl.BindVertexArray(m_vertexArray);
    upload();
    // Any of the points is near the others, compared with how far they may be from the mesh's own origin.
    const auto finite = std::ranges::find_if(m_points, [](const VbVec3f& point) { return isFinite(point); });
    const VbVec3f origin = finite == m_points.end() ? VbVec3f() : *finite;
    const VbMatrix modelMatrix = narrowed(relativeTo(frame.position, origin, worldTransform));
    const float size = m_points.size() > manyMarks ? std::min(style.markSize, leastMarkSize) : style.markSize;
    m_gl.Uniform3fv(m_origin, 1, origin.getValue());
    m_gl.UniformMatrix4fv(m_modelMatrix, 1, GL_FALSE, modelMatrix[0].data());
    m_gl.UniformMatrix4fv(m_eyeToClip, 1, GL_FALSE, frame.eyeToClip[0].data());
    m_gl.Uniform1f(m_size, size * frame.scale);
    m_gl.Uniform3fv(m_color, 1, style.markColor.getValue());
    m_gl.Uniform3fv(m_borderColor, 1, style.markBorderColor.getValue());
    GLStateScope blending(m_gl);
    blending.blend();
    m_gl.DrawArrays(GL_POINTS, 0, static_cast<GLsizei>(m_points.size()));
    ++counts.drawCalls;
}

void MarkPainter::forget()
{
    m_program.forget();
    m_vertexArray = 0;
    m_buffer = 0;
    m_isStale = true;
}

} // namespace meridane
