#pragma once

#include "meridane/gl/geometry/NxBounds.h"
#include "meridane/gl/painting/NxDrawingStyle.h"

class NxViewpoint;

namespace meridane {

class LinePainter;

/// The grid on the ground, which is the plane of x and z, and the axes. The grid surrounds the focal point, and its
/// size depends on how much of the scene is seen.
class Ground {
public:
    Ground(const NxViewpoint& viewpoint, const NxDrawingStyle& style);

    /// The box around the lines, without parts much farther from the focal point than the grid; empty if the style has
    /// no lines.
    [[nodiscard]] NxBounds bounds() const;
    /// Adds the lines, relative to the eye.
    void addLines(LinePainter& lines) const;

private:
    [[nodiscard]] NxBounds partNearFocus(NxBounds box) const;
    void addGrid(LinePainter& lines) const;
    void addAxes(LinePainter& lines) const;

    const NxDrawingStyle& m_style;
    float m_cell;
    VbVec3d m_eye;
    VbVec3d m_focus;
    VbVec3d m_center; // of the grid
};

} // namespace meridane
