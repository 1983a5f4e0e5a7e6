#pragma once

#include "meridane/base/values/VbMatrix.h"
#include "meridane/base/values/VbRotation.h"
#include "meridane/base/values/VbVec.h"
#include "meridane/gl/geometry/Matrix4d.h"

class NxCamera;

/// A half line.
struct NxRay {
    VbVec3d origin; ///< in scene units
    VbVec3f direction; ///< of length 1
};

/// The camera of the view, and how a user moves it.
///
/// Without rotation it looks along negative z with y upwards, like a camera node. In front of it is its focal point,
/// the point that the user is looking at. Coordinates in the picture go from (0, 0) at the lower left to (1, 1) at the
/// upper right; `aspect` is the width of the picture divided by its height. Defaults replace values that make no sense,
/// such as a height of -2 or an angle that is NaN. So every result is finite, unless the scene is farther away than the
/// largest float.
class NxViewpoint {
public:
    /// How distances look in the picture.
    enum Projection {
        PERSPECTIVE, ///< distant objects look smaller
        ORTHOGRAPHIC, ///< objects have the same size at any distance
    };

    VbVec3d position{0, 0, 5}; ///< in scene units
    VbRotation orientation; ///< the turn from looking along negative z with y upwards
    Projection projection = PERSPECTIVE; ///< how distances look in the picture
    float heightAngle = 0.7853982F; ///< between lower and upper border in perspective, in radians, above 0, below pi
    float height = 4; ///< of the visible part in an orthographic picture, in scene units, above 0
    float focalDistance = 5; ///< from the position to the focal point, in scene units, above 0
    /// The part of the picture that is drawn, from its lower left to its upper right corner: for pictures that are put
    /// together from several. Moves, rays and points are those of the whole picture.
    VbVec2f partMin{0, 0};
    VbVec2f partMax{1, 1}; ///< see `partMin`

    /// The viewpoint of a camera node. The focal distance is the default; the caller may set it.
    [[nodiscard]] static NxViewpoint ofCamera(const NxCamera& camera, const meridane::Matrix4d& cameraToScene);

    /// From points relative to the position to the eye: x to the right, y upwards, z towards the viewer.
    [[nodiscard]] VbMatrix viewRotation() const;
    /// The position, or the default if it makes no sense.
    [[nodiscard]] VbVec3d usablePosition() const { return sensible().position; }
    /// From the eye to OpenGL's clip space, a cube from -1 to 1. The distances are along the line of sight; they may be
    /// negative for an orthographic picture. In memory the rows of the matrix are what OpenGL calls columns. Of a
    /// part, the aspect is that of the part.
    [[nodiscard]] VbMatrix projectionMatrix(float aspect, float nearDistance, float farDistance) const;

    /// The direction to the right in the picture, of length 1.
    [[nodiscard]] VbVec3f rightAxis() const;
    /// The direction upwards in the picture, of length 1.
    [[nodiscard]] VbVec3f upAxis() const;
    /// The line of sight, of length 1.
    [[nodiscard]] VbVec3f viewDirection() const;
    /// The point that the user is looking at, in scene units.
    [[nodiscard]] VbVec3d focalPoint() const;
    /// The height of the whole picture at that distance, in scene units.
    [[nodiscard]] float heightAt(float distance) const;
    /// The share of the picture that the drawn part has: of its width and of its height, above 0.
    [[nodiscard]] VbVec2f partSize() const;
    /// The ray through a point of the picture.
    [[nodiscard]] NxRay rayAt(const VbVec2f& place, float aspect) const;
    /// The scene point under a point of the picture, at that distance along the line of sight.
    [[nodiscard]] VbVec3d pointAt(const VbVec2f& place, float aspect, float distance) const;
    /// The distance of a point along the line of sight; negative behind the viewer.
    [[nodiscard]] float distanceTo(const VbVec3d& point) const;

    /// Moves around the focal point by angles in radians: to the right, and upwards until straight above it.
    void orbit(float right, float up);
    /// The same around another point, which keeps its position in the picture. Around its own position the viewpoint
    /// only turns, to the left and downwards.
    void orbit(float right, float up, const VbVec3d& pivot);
    /// Moves sideways so that a point at that distance moves in the picture from `from` to `to`.
    void pan(const VbVec2f& from, const VbVec2f& to, float aspect, float distance);
    /// Makes the surroundings of a point look larger, by a factor above 1, or smaller. The point keeps its position in
    /// the picture.
    void zoom(float factor, const VbVec3d& point);
    /// Moves so that the box fills the picture. A box without any size is moved to the middle at the present distance;
    /// one that isn't finite changes nothing.
    void frame(const VbVec3f& min, const VbVec3f& max, float aspect);
    /// Moves around the focal point to look in that direction, with `up` upwards.
    void lookAlong(const VbVec3f& direction, const VbVec3f& up);
    /// Changes the projection. Objects at the focal point keep their size in the picture.
    void setProjection(Projection newProjection);
    /// Sets the focal distance to the distance of that point, if it isn't behind the viewer.
    void focus(const VbVec3d& point);

    /// Whether all members are equal.
    friend bool operator==(const NxViewpoint&, const NxViewpoint&) noexcept = default;

private:
    void turn(const VbVec3f& direction, const VbVec3f& up);
    void turnBy(float right, float up);
    void placeAhead(const VbVec3d& point);
    [[nodiscard]] NxViewpoint sensible() const;
};
