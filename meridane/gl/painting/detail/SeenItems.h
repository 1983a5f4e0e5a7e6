#pragma once

#include "meridane/gl/geometry/NxPixelRectangle.h"
#include "meridane/gl/painting/detail/ItemPainter.h"
#include "meridane/gl/painting/detail/ShapeProgram.h"

#include <vector>

namespace meridane {

/// Finds the items that are seen in a part of a picture: draws them there, each in a colour of its own, and reads the
/// colours back. What is behind an opaque or translucent surface isn't seen.
class SeenItems {
public:
    explicit SeenItems(const NxGLFunctions& gl);
    SeenItems(const SeenItems&) = delete;
    SeenItems& operator=(const SeenItems&) = delete;
    ~SeenItems();

    /// The items, each once. The painter must be prepared for that frame. Nothing if OpenGL fails, which is reported.
    [[nodiscard]] std::vector<Id> find(PlacedScene& scene, ItemPainter& painter, const PictureFrame& frame,
        const NxDrawingStyle& style, const NxPixelRectangle& part, NxDrawingCounts& counts);
    /// To be called when the context is lost.
    void forget();

private:
    bool bindBuffers(int width, int height);
    void deleteBuffers();

    const NxGLFunctions& m_gl;
    ShapeProgram m_shapes;
    unsigned int m_framebuffer = 0;
    unsigned int m_buffers[2] = {0, 0}; // colour and depth
};

} // namespace meridane
