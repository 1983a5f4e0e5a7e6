#pragma once

#include "meridane/base/values/VbVec.h"
#include "meridane/gl/geometry/Matrix4d.h"

#include <vector>

class NxCamera;
class NxField;
class NxViewpoint;

namespace meridane {

/// Lets a camera node look as a viewpoint does, by writing its fields: the opposite of `NxViewpoint::ofCamera`.
class CameraFields {
public:
    /// How much of a viewpoint the fields of a camera could take.
    enum class Result {
        Set, ///< the camera looks as the viewpoint does
        WithoutSize, ///< from the same place into the same direction, but the camera has another projection
        Impossible, ///< nothing was written: the transform of the parent can't be inverted
    };

    /// The camera outlives this.
    explicit CameraFields(NxCamera& camera)
        : m_camera(camera)
    {
    }

    /// The fields that `set` writes.
    [[nodiscard]] std::vector<NxField*> fields() const;
    /// `parentToScene` is the transform of the camera's parent.
    [[nodiscard]] Result set(const NxViewpoint& viewpoint, const Matrix4d& parentToScene);
    /// Moves the near and far distance, if need be, so that a camera at the top of the scene can see the box.
    void include(const VbVec3f& min, const VbVec3f& max);

private:
    NxCamera& m_camera;
};

} // namespace meridane
