#pragma once

#include "meridane/gl/NxBounds.h"
#include "meridane/gl/NxDrawingStyle.h"

class NxViewpoint;

namespace meridane {

class LinePainter;

/// The grid on the ground, the plane of x and z, and the axes. The grid goes as far around the focal point as makes
/// sense for how much of the scene is seen.
class Ground {
public:
    Ground(const NxViewpoint& viewpoint, const NxDrawingStyle& style);

    /// Where there are lines; empty when the style has none.
    [[nodiscard]] NxBounds bounds() const;
    void addLines(LinePainter& lines) const;

private:
    void addGrid(LinePainter& lines) const;
    void addAxes(LinePainter& lines) const;

    const NxDrawingStyle& m_style;
    float m_cell;
    VbVec3f m_center;
};

} // namespace meridane
