#include "meridane/gl/painting/detail/ShapeProgram.h"

#include <array>

namespace meridane {
namespace {

constexpr const char* anyShapeSource = R"(
layout(location = 0) in vec3 position;
uniform vec3 origin;
uniform mat4 modelMatrix;
uniform mat4 eyeToClip;
uniform float pointSize;
uniform float nearer;
uniform vec4 section;
out float gl_ClipDistance[1];
void main()
{
    vec4 point = modelMatrix * vec4(position - origin, 1.0);
    gl_ClipDistance[0] = dot(vec4(point.xyz / point.w, 1.0), section);
    gl_Position = eyeToClip * point;
    gl_Position.z -= nearer * gl_Position.w;
    gl_PointSize = pointSize;
}
)";

} // namespace

bool ShapeProgram::use(const PictureFrame& frame, const NxDrawingStyle& style, float nearer)
{
    if (!m_program.isMade()) {
        m_program = GLProgram(m_gl, m_name, anyShapeSource, m_fragmentSource);
        if (m_program.isUsable())
            m_model = {uniform("origin"), uniform("modelMatrix"), uniform("number")};
    }
    if (!m_program.isUsable())
        return false;
    m_program.use();
    m_gl.UniformMatrix4fv(uniform("eyeToClip"), 1, GL_FALSE, frame.eyeToClip[0].data());
    m_gl.Uniform1f(uniform("pointSize"), style.pointSize * frame.scale);
    m_gl.Uniform1f(uniform("nearer"), nearer);
    // Without a section, nothing is on the wrong side of it.
    const std::array<float, 4> section = style.section.isOn
        ? frame.sectionFor(style.section.normal, style.section.position)
        : std::array<float, 4>{0, 0, 0, 1};
    m_gl.Uniform4fv(uniform("section"), 1, section.data());
    return true;
}

} // namespace meridane
