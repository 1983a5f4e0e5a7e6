#pragma once

#include "meridane/gl/painting/detail/ShapeProgram.h"

namespace meridane {

/// Draws the sides of the triangles over the surfaces, where the style says so.
class WirePainter {
public:
    explicit WirePainter(const NxGLFunctions& gl);
    WirePainter(const WirePainter&) = delete;
    WirePainter& operator=(const WirePainter&) = delete;
    ~WirePainter() = default;

    void draw(PlacedScene& scene, ItemPainter& painter, const PictureFrame& frame, const NxDrawingStyle& style,
        NxDrawingCounts& counts);
    /// To be called when the context is lost.
    void forget() { m_program.forget(); }

private:
    const NxGLFunctions& m_gl;
    ShapeProgram m_program;
};

} // namespace meridane
