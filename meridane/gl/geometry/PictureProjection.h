#pragma once

#include "meridane/base/values/VbVec.h"

#include <array>
#include <optional>

class NxViewpoint;

namespace meridane {

/// A place in a picture, in points of the screen from the upper left: x to the right, y downwards.
using PicturePlace = std::array<double, 2>;

/// A line from the eye through a place of the picture.
struct SightLine {
    VbVec3d origin; ///< in scene units
    VbVec3d direction; ///< of length 1
};

/// Where points of a scene are in a picture of it, in double precision: exact for handles that are dragged, also far
/// from the origin.
class PictureProjection {
public:
    /// For a picture of that size in points of the screen, both above 0.
    PictureProjection(const NxViewpoint& viewpoint, double width, double height);

    /// Where a point is seen; nothing for one that isn't in front of the viewer.
    [[nodiscard]] std::optional<PicturePlace> placeOf(const VbVec3d& point) const;
    /// The line from the viewer through a place. In an orthographic picture every place has an origin of its own.
    [[nodiscard]] SightLine lineAt(const PicturePlace& place) const;
    /// The length in scene units of one point of the screen, at the distance of a point of the scene.
    [[nodiscard]] double unitsPerPoint(const VbVec3d& point) const;
    /// The direction in which the viewer sees that point, of length 1.
    [[nodiscard]] VbVec3d directionTo(const VbVec3d& point) const;
    /// The directions to the right and upwards in the picture, and the line of sight, each of length 1.
    [[nodiscard]] const VbVec3d& right() const noexcept { return m_right; }
    /// The direction upwards in the picture, of length 1.
    [[nodiscard]] const VbVec3d& up() const noexcept { return m_up; }
    /// The line of sight, of length 1.
    [[nodiscard]] const VbVec3d& ahead() const noexcept { return m_ahead; }

private:
    VbVec3d m_eye;
    VbVec3d m_right;
    VbVec3d m_up;
    VbVec3d m_ahead;
    double m_width;
    double m_height;
    double m_unitHeight; // of the picture in scene units: at a distance of 1 in perspective, else at any
    bool m_isPerspective;
};

} // namespace meridane
