#pragma once

#include <QImage>
#include <QSize>

class NxGLFunctions;

/// Where the view's pictures are drawn, and how they come back: a framebuffer with several samples a pixel, and one
/// with the colours alone that is read.
///
/// The context of the functions must be current in every operation but `contextLost`, and in the destructor.
class PictureBuffer {
public:
    /// How edges are drawn.
    enum class Edges { Smooth, Rough };

    /// The functions outlive the buffer.
    explicit PictureBuffer(const NxGLFunctions& functions, Edges edges = Edges::Smooth);
    ~PictureBuffer();
    PictureBuffer(const PictureBuffer&) = delete;
    PictureBuffer& operator=(const PictureBuffer&) = delete;

    /// How many samples a pixel has where edges are smooth, 4 by default; 0 for rough edges. Fewer where the graphics
    /// system has fewer. From the next `bind` on.
    void setSamples(int samples);
    /// Binds a framebuffer of that size in pixels, or, where the graphics system takes no picture of that size, of a
    /// smaller one. The result is its size, or an empty one when there is no memory for it.
    [[nodiscard]] QSize bind(QSize size);
    /// The picture that was drawn since `bind`.
    [[nodiscard]] QImage read();
    /// Binds the framebuffer again, with what was drawn in it; `bind` must have bound one.
    void bindAgain();
    /// Forgets what was in a context that is gone.
    void contextLost();

private:
    [[nodiscard]] bool make(QSize size, int samples);
    void destroy();

    const NxGLFunctions& m_gl;
    Edges m_edges;
    int m_samples = 4; // edges are smooth enough with these, and a processor that draws by itself still keeps up
    bool m_isStale = false; // made for another number of samples
    QSize m_size;
    unsigned m_drawn = 0; // the framebuffer with samples
    unsigned m_resolved = 0;
    unsigned m_buffers[3] = {}; // colours and depths with samples, colours without
};
