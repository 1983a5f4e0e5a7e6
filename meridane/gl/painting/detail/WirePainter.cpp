#include "meridane/gl/painting/detail/WirePainter.h"

#include "meridane/gl/gpu/detail/GLStateScope.h"

#include <array>

namespace meridane {
namespace {

constexpr const char* wireFragmentSource = R"(
uniform vec4 color;
out vec4 pictureColor;
void main()
{
    pictureColor = color;
}
)";

} // namespace

WirePainter::WirePainter(const NxGLFunctions& gl)
    : m_gl(gl)
    , m_program(gl, "wires", wireFragmentSource)
{
}

void WirePainter::draw(PlacedScene& scene, ItemPainter& painter, const PictureFrame& frame, const NxDrawingStyle& style,
    NxDrawingCounts& counts)
{
    constexpr float nearerThanSurfaces = 0.0002F;
    if (!style.wires || painter.found().empty() || !m_program.use(frame, style, nearerThanSurfaces))
        return;
    GLStateScope lines(m_gl);
    lines.setPolygonMode(GL_LINE);
    lines.setDepthWrites(false);
    lines.blend();
    lines.setEnabled(GL_CLIP_DISTANCE0, style.section.isOn);
    constexpr float opacity = 0.5F;
    const std::array<float, 4> color{style.wireColor[0], style.wireColor[1], style.wireColor[2], opacity};
    m_gl.Uniform4fv(m_program.uniform("color"), 1, color.data());
    m_gl.Uniform1f(m_program.uniform("pointSize"), 1);
    painter.drawShapes(scene, painter.found(), m_program.modelUniforms(), counts);
}

} // namespace meridane
