#include "meridane/gl/painting/detail/WirePainter.h"

#include "meridane/gl/gpu/detail/GLStateScope.h"

#include <array>

namespace meridane {
namespace {

constexpr const char* wireVertexSource = R"(
layout(location = 0) in vec3 position;
uniform vec3 origin;
uniform mat4 modelMatrix;
uniform mat4 eyeToClip;
uniform vec4 section;
out float gl_ClipDistance[1];
void main()
{
    vec4 point = modelMatrix * vec4(position - origin, 1.0);
    gl_ClipDistance[0] = dot(vec4(point.xyz / point.w, 1.0), section);
    gl_Position = eyeToClip * point;
    // A little nearer than the surface.
    gl_Position.z -= 0.0002 * gl_Position.w;
    gl_PointSize = 1.0;
}
)";

constexpr const char* wireFragmentSource = R"(
uniform vec4 color;
out vec4 pictureColor;
void main()
{
    pictureColor = color;
}
)";

} // namespace

void WirePainter::draw(PlacedScene& scene, ItemPainter& painter, const PictureFrame& frame, const NxDrawingStyle& style,
    NxDrawingCounts& counts)
{
    if (!style.wires || painter.found().empty())
        return;
    if (!m_program.isMade())
        m_program = GLProgram(m_gl, "wires", wireVertexSource, wireFragmentSource);
    if (!m_program.isUsable())
        return;
    GLStateScope lines(m_gl);
    lines.setPolygonMode(GL_LINE);
    lines.setDepthWrites(false);
    lines.blend();
    lines.setEnabled(GL_CLIP_DISTANCE0, style.section.isOn);
    m_program.use();
    constexpr float opacity = 0.5F;
    const std::array<float, 4> color{style.wireColor[0], style.wireColor[1], style.wireColor[2], opacity};
    m_gl.Uniform4fv(m_program.uniform("color"), 1, color.data());
    // Without a section, nothing is on the wrong side of it.
    const std::array<float, 4> section = style.section.isOn
        ? frame.sectionFor(style.section.normal, style.section.position)
        : std::array<float, 4>{0, 0, 0, 1};
    m_gl.Uniform4fv(m_program.uniform("section"), 1, section.data());
    m_gl.UniformMatrix4fv(m_program.uniform("eyeToClip"), 1, GL_FALSE, frame.eyeToClip[0].data());
    painter.drawShapes(scene, painter.found(), {m_program.uniform("origin"), m_program.uniform("modelMatrix")}, counts);
}

} // namespace meridane
