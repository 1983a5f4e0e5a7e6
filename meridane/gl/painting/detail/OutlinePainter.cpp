#include "meridane/gl/painting/detail/OutlinePainter.h"

#include "meridane/base/errors/NxGLError.h"
#include "meridane/gl/gpu/detail/GLStateScope.h"
#include "meridane/gl/painting/detail/FramebufferScope.h"

#include <algorithm>
#include <cmath>

namespace meridane {
namespace {

constexpr const char* shapeFragmentSource = R"(
out vec4 mask;
void main()
{
    mask = vec4(1.0);
}
)";

// Samples the mask around each pixel outside of the shapes: near them is the line, and around it its border.
constexpr const char* borderFragmentSource = R"(
uniform sampler2D mask;
uniform vec3 color;
uniform vec3 borderColor;
uniform float width;
uniform float border;
out vec4 pictureColor;
float sumAround(ivec2 place, float radius)
{
    ivec2 last = textureSize(mask, 0) - 1;
    float sum = 0.0;
    for (int i = 0; i < 8; ++i) {
        float angle = 0.78539816 * float(i);
        vec2 way = vec2(cos(angle), sin(angle)) * radius;
        sum += texelFetch(mask, clamp(place + ivec2(round(way)), ivec2(0), last), 0).r;
    }
    return sum;
}
void main()
{
    ivec2 place = ivec2(gl_FragCoord.xy);
    if (texelFetch(mask, place, 0).r > 0.5)
        discard;
    float sum = sumAround(place, width * 0.5) + sumAround(place, width);
    if (sum > 0.5) {
        pictureColor = vec4(color, min(sum * 0.5, 1.0));
        return;
    }
    float outer = sumAround(place, width + border);
    if (outer < 0.5)
        discard;
    pictureColor = vec4(borderColor, 0.85);
}
)";

/// How wide the border of an outline is, in points of the screen.
constexpr float borderWidth = 1.25F;

/// The part of the picture that shows some items, with a margin.
NxPixelRectangle rectangleOf(PlacedScene& scene, std::span<const Id> items, const PictureFrame& frame, int margin)
{
    NxBounds bounds;
    for (const Id id : items)
        bounds.include(scene.tree().boundsOf(id));
    std::array<double, 2> least{1, 1};
    std::array<double, 2> greatest{-1, -1};
    for (unsigned int corner = 0; corner < 8; ++corner) {
        std::array<double, 4> clip{};
        for (std::size_t column = 0; column < 4; ++column) {
            clip[column] = static_cast<double>(frame.eyeToClip[3][column]);
            for (std::size_t axis = 0; axis < 3; ++axis) {
                const auto place
                    = static_cast<double>((corner >> axis & 1U) != 0 ? bounds.max[axis] : bounds.min[axis]);
                const double rounding = NxBounds::rounding * std::abs(place) * ((corner >> axis & 1U) != 0 ? 1 : -1);
                clip[column]
                    += (place + rounding - frame.position[axis]) * static_cast<double>(frame.eyeToClip[axis][column]);
            }
        }
        if (!(clip[3] > 0)) // beside or behind the eye
            return {0, 0, frame.width, frame.height};
        for (std::size_t axis = 0; axis < 2; ++axis) {
            least[axis] = std::min(least[axis], clip[axis] / clip[3]);
            greatest[axis] = std::max(greatest[axis], clip[axis] / clip[3]);
        }
    }
    const auto pixel = [](double place, int size, int shift) {
        return std::clamp(static_cast<int>((std::clamp(place, -1.0, 1.0) + 1) / 2 * size) + shift, 0, size);
    };
    const int left = pixel(least[0], frame.width, -margin);
    const int bottom = pixel(least[1], frame.height, -margin);
    return {left, bottom, pixel(greatest[0], frame.width, margin) - left,
        pixel(greatest[1], frame.height, margin) - bottom};
}

} // namespace

OutlinePainter::OutlinePainter(const NxGLFunctions& gl)
    : m_gl(gl)
    , m_border(gl, "outlines", borderFragmentSource)
    , m_shapes(gl, "shapes", shapeFragmentSource)
{
}

OutlinePainter::~OutlinePainter()
{
    deleteMask();
}

void OutlinePainter::deleteMask()
{
    m_gl.DeleteFramebuffers(1, &m_framebuffer);
    m_gl.DeleteTextures(1, &m_mask);
}

void OutlinePainter::forget()
{
    m_border.forget();
    m_shapes.forget();
    m_framebuffer = 0;
    m_mask = 0;
    m_width = 0;
}

bool OutlinePainter::prepareMask(int width, int height)
{
    if (m_width == width && m_height == height)
        return m_framebuffer != 0;
    deleteMask();
    m_width = width;
    m_height = height;
    m_gl.GenTextures(1, &m_mask);
    m_gl.BindTexture(GL_TEXTURE_2D, m_mask);
    m_gl.TexImage2D(GL_TEXTURE_2D, 0, GL_R8, width, height, 0, GL_RED, GL_UNSIGNED_BYTE, nullptr);
    m_gl.TexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    m_gl.TexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    m_gl.GenFramebuffers(1, &m_framebuffer);
    m_gl.BindFramebuffer(GL_FRAMEBUFFER, m_framebuffer);
    m_gl.FramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, m_mask, 0);
    if (m_gl.CheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE)
        return true;
    NxGLError::post(GL_INVALID_FRAMEBUFFER_OPERATION, VbString("Making an image for outlines"));
    deleteMask();
    m_framebuffer = 0;
    m_mask = 0;
    return false;
}

bool OutlinePainter::draw(PlacedScene& scene, std::span<const Id> items, ItemPainter& painter,
    const PictureFrame& frame, const NxDrawingStyle& style, DrawingProgress& progress, NxDrawingCounts& counts)
{
    if (items.empty())
        return true;
    const float width = std::max(style.outlineWidth * frame.scale, 1.0F);
    const float border = borderWidth * frame.scale;
    const NxPixelRectangle part = rectangleOf(scene, items, frame, static_cast<int>(std::ceil(width + border)) + 2);
    {
        const FramebufferScope framebuffer(m_gl);
        if (!prepareMask(frame.width, frame.height))
            return true;
        m_gl.BindFramebuffer(GL_FRAMEBUFFER, m_framebuffer);
        if (progress.item == 0 && progress.corner == 0) {
            // The whole mask: at the edge of the part, the border samples pixels beyond it.
            m_gl.ClearColor(0, 0, 0, 0);
            m_gl.Clear(GL_COLOR_BUFFER_BIT);
        }
        GLStateScope clipping(m_gl);
        clipping.setScissor(part.left, part.bottom, part.width, part.height);
        if (!m_shapes.use(frame, style))
            return true;
        if (!painter.drawShapes(scene, items, m_shapes.modelUniforms(), progress, counts))
            return false;
    }
    drawBorder(part, width, border, style, counts);
    return true;
}

void OutlinePainter::drawBorder(
    const NxPixelRectangle& part, float width, float border, const NxDrawingStyle& style, NxDrawingCounts& counts)
{
    if (!m_border.use())
        return;
    GLStateScope blending(m_gl);
    blending.blend();
    blending.setScissor(part.left, part.bottom, part.width, part.height);
    m_gl.BindTexture(GL_TEXTURE_2D, m_mask);
    m_gl.BindSampler(0, 0);
    m_gl.Uniform3fv(m_border.uniform("color"), 1, style.outlineColor.getValue());
    m_gl.Uniform3fv(m_border.uniform("borderColor"), 1, style.outlineBorderColor.getValue());
    m_gl.Uniform1f(m_border.uniform("width"), width);
    m_gl.Uniform1f(m_border.uniform("border"), border);
    m_border.draw();
    ++counts.drawCalls;
}

} // namespace meridane
