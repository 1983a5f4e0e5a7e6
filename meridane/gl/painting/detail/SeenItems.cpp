#include "meridane/gl/painting/detail/SeenItems.h"

#include "meridane/base/errors/NxGLError.h"
#include "meridane/gl/gpu/detail/GLStateScope.h"
#include "meridane/gl/painting/detail/FramebufferScope.h"
#include "meridane/gl/painting/detail/NumberColor.h"

#include <algorithm>
#include <cstdint>

namespace meridane {
namespace {

constexpr const char* numberFragmentSource = R"(
uniform vec4 number;
out vec4 pictureNumber;
void main()
{
    pictureNumber = number;
}
)";

} // namespace

SeenItems::SeenItems(const NxGLFunctions& gl)
    : m_gl(gl)
    , m_shapes(gl, "what is seen", numberFragmentSource)
{
}

SeenItems::~SeenItems()
{
    deleteBuffers();
}

void SeenItems::deleteBuffers()
{
    if (m_framebuffer == 0)
        return;
    m_gl.DeleteFramebuffers(1, &m_framebuffer);
    m_gl.DeleteRenderbuffers(2, m_buffers);
    m_framebuffer = 0;
}

void SeenItems::forget()
{
    m_shapes.forget();
    m_framebuffer = 0;
}

bool SeenItems::bindBuffers(int width, int height)
{
    m_gl.GenFramebuffers(1, &m_framebuffer);
    m_gl.GenRenderbuffers(2, m_buffers);
    m_gl.BindFramebuffer(GL_FRAMEBUFFER, m_framebuffer);
    const auto attach = [&](unsigned int buffer, GLenum format, GLenum place) {
        m_gl.BindRenderbuffer(GL_RENDERBUFFER, buffer);
        m_gl.RenderbufferStorage(GL_RENDERBUFFER, format, width, height);
        m_gl.FramebufferRenderbuffer(GL_FRAMEBUFFER, place, GL_RENDERBUFFER, buffer);
    };
    attach(m_buffers[0], GL_RGBA8, GL_COLOR_ATTACHMENT0);
    attach(m_buffers[1], GL_DEPTH_COMPONENT24, GL_DEPTH_ATTACHMENT);
    if (m_gl.CheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE)
        return true;
    NxGLError::post(GL_INVALID_FRAMEBUFFER_OPERATION, VbString("Making an image of what is seen"));
    return false;
}

std::vector<Id> SeenItems::find(PlacedScene& scene, ItemPainter& painter, const PictureFrame& frame,
    const NxDrawingStyle& style, const NxPixelRectangle& part, NxDrawingCounts& counts)
{
    const int left = std::clamp(part.left, 0, frame.width);
    const int bottom = std::clamp(part.bottom, 0, frame.height);
    const int width = std::clamp(part.left + part.width, 0, frame.width) - left;
    const int height = std::clamp(part.bottom + part.height, 0, frame.height) - bottom;
    if (width <= 0 || height <= 0)
        return {};

    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * 4);
    {
        const FramebufferScope framebuffer(m_gl);
        if (bindBuffers(width, height)) {
            // The picture is larger than the buffers, which show only the part.
            m_gl.Viewport(-left, -bottom, frame.width, frame.height);
            m_gl.ClearColor(0, 0, 0, 0);
            m_gl.Clear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
            GLStateScope state(m_gl);
            state.setEnabled(GL_DEPTH_TEST);
            state.setEnabled(GL_PROGRAM_POINT_SIZE);
            state.setDepthFunction(GL_LEQUAL);
            state.setEnabled(GL_CLIP_DISTANCE0, style.section.isOn);
            if (m_shapes.use(frame, style))
                painter.drawShapes(scene, painter.found(), m_shapes.modelUniforms(), counts);
            m_gl.PixelStorei(GL_PACK_ALIGNMENT, 4);
            m_gl.ReadPixels(0, 0, width, height, GL_RGBA, GL_UNSIGNED_BYTE, bytes.data());
        }
    }
    deleteBuffers();

    std::vector<bool> isSeen(painter.found().size() + 1);
    for (std::size_t i = 0; i < bytes.size(); i += 4) {
        if (const std::uint32_t number = numberOfColor(&bytes[i]); number < isSeen.size())
            isSeen[number] = true;
    }
    std::vector<Id> items;
    for (std::size_t number = 1; number < isSeen.size(); ++number) {
        if (isSeen[number])
            items.push_back(painter.found()[number - 1]);
    }
    return items;
}

} // namespace meridane
