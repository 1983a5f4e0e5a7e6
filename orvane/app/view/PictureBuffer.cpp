#include "orvane/app/view/PictureBuffer.h"

#include "meridane/gl/gpu/NxGLFunctions.h"

#include <algorithm>
#include <iterator>
#include <utility>

PictureBuffer::PictureBuffer(const NxGLFunctions& functions, Edges edges)
    : m_gl(functions)
    , m_edges(edges)
{
}

PictureBuffer::~PictureBuffer()
{
    destroy();
}

void PictureBuffer::setSamples(int samples)
{
    if (samples == m_samples)
        return;
    m_samples = samples;
    m_isStale = true;
}

QSize PictureBuffer::bind(QSize size)
{
    GLint most = 0;
    m_gl.GetIntegerv(GL_MAX_RENDERBUFFER_SIZE, &most);
    GLint samples = 0;
    m_gl.GetIntegerv(GL_MAX_SAMPLES, &samples);
    const QSize possible = size.boundedTo(QSize(most, most)).expandedTo(QSize(1, 1));
    if (possible != m_size || m_drawn == 0 || std::exchange(m_isStale, false)) {
        destroy();
        // A picture with rough edges is better than none.
        const int wanted = m_edges == Edges::Smooth ? std::min(samples, m_samples) : 0;
        if (!make(possible, wanted) && !make(possible, 0)) {
            destroy();
            return {};
        }
        m_size = possible;
    }
    m_gl.BindFramebuffer(GL_FRAMEBUFFER, m_drawn);
    return m_size;
}

void PictureBuffer::bindAgain()
{
    m_gl.BindFramebuffer(GL_FRAMEBUFFER, m_drawn);
}

bool PictureBuffer::make(QSize size, int samples)
{
    destroy();
    m_gl.GenRenderbuffers(3, m_buffers);
    m_gl.GenFramebuffers(1, &m_drawn);
    m_gl.GenFramebuffers(1, &m_resolved);
    const auto allocate = [&](unsigned buffer, GLenum format, int bufferSamples) {
        m_gl.BindRenderbuffer(GL_RENDERBUFFER, buffer);
        m_gl.RenderbufferStorageMultisample(GL_RENDERBUFFER, bufferSamples, format, size.width(), size.height());
    };
    allocate(m_buffers[0], GL_RGBA8, samples);
    allocate(m_buffers[1], GL_DEPTH24_STENCIL8, samples);
    allocate(m_buffers[2], GL_RGBA8, 0);
    m_gl.BindFramebuffer(GL_FRAMEBUFFER, m_resolved);
    m_gl.FramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, m_buffers[2]);
    const bool resolves = m_gl.CheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
    m_gl.BindFramebuffer(GL_FRAMEBUFFER, m_drawn);
    m_gl.FramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, m_buffers[0]);
    m_gl.FramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_STENCIL_ATTACHMENT, GL_RENDERBUFFER, m_buffers[1]);
    return resolves && m_gl.CheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE
        && m_gl.GetError() == GL_NO_ERROR;
}

QImage PictureBuffer::read()
{
    QImage image(m_size, QImage::Format_RGB32);
    if (image.isNull())
        return image;
    m_gl.BindFramebuffer(GL_READ_FRAMEBUFFER, m_drawn);
    m_gl.BindFramebuffer(GL_DRAW_FRAMEBUFFER, m_resolved);
    m_gl.BlitFramebuffer(
        0, 0, m_size.width(), m_size.height(), 0, 0, m_size.width(), m_size.height(), GL_COLOR_BUFFER_BIT, GL_NEAREST);
    m_gl.BindFramebuffer(GL_FRAMEBUFFER, m_resolved);
    m_gl.PixelStorei(GL_PACK_ALIGNMENT, 4);
    m_gl.ReadPixels(0, 0, m_size.width(), m_size.height(), GL_BGRA, GL_UNSIGNED_INT_8_8_8_8_REV, image.bits());
    return std::move(image).mirrored(); // OpenGL's first row is the lowest
}

void PictureBuffer::contextLost()
{
    m_drawn = 0;
    m_resolved = 0;
    std::fill(std::begin(m_buffers), std::end(m_buffers), 0U);
    m_size = QSize();
}

void PictureBuffer::destroy()
{
    if (m_drawn == 0)
        return;
    m_gl.DeleteFramebuffers(1, &m_drawn);
    m_gl.DeleteFramebuffers(1, &m_resolved);
    m_gl.DeleteRenderbuffers(3, m_buffers);
    contextLost();
}
