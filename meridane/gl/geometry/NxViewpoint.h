#pragma once

#include "meridane/base/values/VbMatrix.h"
#include "meridane/base/values/VbRotation.h"
#include "meridane/base/values/VbVec.h"
#include "meridane/gl/geometry/Matrix4d.h"

class NxCamera;

/// A half line of sight.
struct NxRay {
    VbVec3d origin;
    VbVec3f direction; ///< of length 1
};

/// From where and how a scene is looked at, and the ways in which a user moves there.
///
/// As a camera, it looks along negative z with y upwards when it isn't turned. It has a focal point, straight ahead,
/// that the user is looking at. A place in the picture goes from (0, 0) at the lower left to (1, 1) at the upper right;
/// `aspect` is the width of the picture divided by its height. Numbers that make no sense, such as a height of -2 or an
/// angle that is no number, count as the default; so every result is finite unless the scene is farther away than
/// floats reach.
class NxViewpoint {
public:
    enum Projection {
        PERSPECTIVE, ///< distant things look smaller
        ORTHOGRAPHIC, ///< things look the same size at any distance
    };

    VbVec3d position{0, 0, 5}; ///< in scene units
    VbRotation orientation;
    Projection projection = PERSPECTIVE;
    float heightAngle = 0.7853982F; ///< between lower and upper border in perspective, in radians, above 0, below pi
    float height = 4; ///< of what is seen, orthographically, in scene units, above 0
    float focalDistance = 5; ///< from the position to the focal point, in scene units, above 0

    /// What a camera sees that stands in a place of the scene. The focal distance is left for the caller to choose.
    [[nodiscard]] static NxViewpoint ofCamera(const NxCamera& camera, const meridane::Matrix4d& cameraToScene);

    /// From the scene to the eye: x to the right, y upwards, z towards the viewer. Far from the origin, floats place
    /// the eye coarsely: see `viewRotation`.
    [[nodiscard]] VbMatrix viewMatrix() const;
    /// The same for points that are told relative to the position.
    [[nodiscard]] VbMatrix viewRotation() const;
    /// The position, or the default if it makes no sense.
    [[nodiscard]] VbVec3d usablePosition() const { return sensible().position; }
    /// From the eye to the cube from -1 to 1 that OpenGL clips at. The distances are along the line of sight; they may
    /// be negative for an orthographic picture. The matrix, row by row in memory, is what a column-wise uniform takes.
    [[nodiscard]] VbMatrix projectionMatrix(float aspect, float nearDistance, float farDistance) const;

    [[nodiscard]] VbVec3f rightAxis() const;
    [[nodiscard]] VbVec3f upAxis() const;
    /// The line of sight, of length 1.
    [[nodiscard]] VbVec3f viewDirection() const;
    [[nodiscard]] VbVec3d focalPoint() const;
    /// How much of the scene, in its units, the height of the picture shows at that distance.
    [[nodiscard]] float heightAt(float distance) const;
    /// What lies under a place of the picture.
    [[nodiscard]] NxRay rayAt(const VbVec2f& place, float aspect) const;
    /// The point under a place of the picture whose distance along the line of sight is given.
    [[nodiscard]] VbVec3d pointAt(const VbVec2f& place, float aspect, float distance) const;
    /// How far a point is away along the line of sight; negative behind the viewer.
    [[nodiscard]] float distanceTo(const VbVec3d& point) const;

    /// Goes round the focal point by angles in radians: to the right of it, and above it as far as straight above.
    void orbit(float right, float up);
    /// Moves so that what is at `from` comes to `to`, if it is at that distance.
    void pan(const VbVec2f& from, const VbVec2f& to, float aspect, float distance);
    /// Makes what is around a point look larger, by a factor above 1, or smaller; the point stays where it is in the
    /// picture.
    void zoom(float factor, const VbVec3d& point);
    /// Moves to where the box fills the picture. A box without any size is brought to the middle at the distance as it
    /// is; one that isn't finite changes nothing.
    void frame(const VbVec3f& min, const VbVec3f& max, float aspect);
    /// Goes round the focal point to look in that direction, with `up` upwards.
    void lookAlong(const VbVec3f& direction, const VbVec3f& up);
    /// Changes the projection so that what is at the focal point keeps its size.
    void setProjection(Projection newProjection);
    /// Lets the focal point be straight ahead at the distance of that point, if it isn't behind the viewer.
    void focus(const VbVec3d& point);

    friend bool operator==(const NxViewpoint&, const NxViewpoint&) noexcept = default;

private:
    void turn(const VbVec3f& direction, const VbVec3f& up);
    void placeAhead(const VbVec3d& point);
    [[nodiscard]] NxViewpoint sensible() const;
};
