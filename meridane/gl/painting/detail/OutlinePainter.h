#pragma once

#include "meridane/gl/geometry/NxPixelRectangle.h"
#include "meridane/gl/painting/detail/ItemPainter.h"
#include "meridane/gl/painting/detail/ScreenPass.h"
#include "meridane/gl/painting/detail/ShapeProgram.h"

#include <span>

namespace meridane {

/// Draws a line with a dark border around some items, even where they are hidden: draws their shapes into a mask, and
/// the border of the mask into the picture.
class OutlinePainter {
public:
    explicit OutlinePainter(const NxGLFunctions& gl);
    OutlinePainter(const OutlinePainter&) = delete;
    OutlinePainter& operator=(const OutlinePainter&) = delete;
    /// The context must be current, or `forget` have been called.
    ~OutlinePainter();

    /// Draws the line, or a part of the shapes that it needs. Returns whether it is drawn.
    bool draw(PlacedScene& scene, std::span<const Id> items, ItemPainter& painter, const PictureFrame& frame,
        const NxDrawingStyle& style, DrawingProgress& progress, NxDrawingCounts& counts);
    void forget();

private:
    bool prepareMask(int width, int height);
    void drawBorder(
        const NxPixelRectangle& part, float width, float border, const NxDrawingStyle& style, NxDrawingCounts& counts);
    void deleteMask();

    const NxGLFunctions& m_gl;
    ScreenPass m_border;
    ShapeProgram m_shapes;
    unsigned int m_framebuffer = 0;
    unsigned int m_mask = 0;
    int m_width = 0;
    int m_height = 0;
};

} // namespace meridane
