#include "orvane/import/conversion/CameraConversion.h"

#include "orvane/import/conversion/TransformConversion.h"
#include "orvane/import/mending/Names.h"

#include "meridane/scene/nodes/NxOrthographicCamera.h"
#include "meridane/scene/nodes/NxPerspectiveCamera.h"

#include <cmath>

namespace orvane {
namespace {

// A model without an aspect ratio is taken to have a square picture.
float aspectOf(const aiCamera& camera)
{
    return camera.mAspect > 0 ? camera.mAspect : 1;
}

NxRef<NxCamera> toPerspectiveCamera(const aiCamera& camera)
{
    NxRef<NxPerspectiveCamera> result = new NxPerspectiveCamera;
    const float angle = 2 * std::atan(std::tan(camera.mHorizontalFOV / 2) / aspectOf(camera));
    if (angle > 0)
        result->heightAngle.setValue(angle);
    return result;
}

NxRef<NxCamera> toOrthographicCamera(const aiCamera& camera)
{
    NxRef<NxOrthographicCamera> result = new NxOrthographicCamera;
    result->height.setValue(2 * camera.mOrthographicWidth / aspectOf(camera));
    return result;
}

} // namespace

NxRef<NxCamera> toCamera(const aiCamera& camera)
{
    NxRef<NxCamera> result = camera.mOrthographicWidth > 0 ? toOrthographicCamera(camera) : toPerspectiveCamera(camera);
    result->setName(toName(camera.mName));
    result->position.setValue(toVec(camera.mPosition));
    const VbRotation orientation = rotationTo(camera.mLookAt, camera.mUp);
    if (orientation.getAngle() != 0)
        result->orientation.setValue(orientation);
    if (camera.mClipPlaneNear > 0)
        result->nearDistance.setValue(camera.mClipPlaneNear);
    if (camera.mClipPlaneFar > result->nearDistance.getValue())
        result->farDistance.setValue(camera.mClipPlaneFar);
    return result;
}

bool moveCamera(NxCamera& camera, const aiMatrix4x4& transform)
{
    VbRotation rotation;
    VbVec3f translation;
    const aiMatrix4x4 whole = transform * rigidMatrix(camera.orientation.getValue(), camera.position.getValue());
    if (!isRigid(whole, rotation, translation))
        return false;
    camera.position.setValue(translation);
    camera.orientation.setValue(rotation.getAngle() != 0 ? rotation : VbRotation());
    return true;
}

std::unique_ptr<aiCamera> toAiCamera(const NxCamera& camera, aiMatrix4x4& transform)
{
    auto result = std::make_unique<aiCamera>();
    result->mAspect = 1;
    if (const auto* perspective = dynamic_cast<const NxPerspectiveCamera*>(&camera)) {
        result->mHorizontalFOV = perspective->heightAngle.getValue();
    } else if (const auto* orthographic = dynamic_cast<const NxOrthographicCamera*>(&camera)) {
        result->mHorizontalFOV = 0;
        result->mOrthographicWidth = orthographic->height.getValue() / 2;
    } else {
        return nullptr;
    }
    result->mLookAt = aiVector3D(0, 0, -1);
    result->mUp = aiVector3D(0, 1, 0);
    result->mClipPlaneNear = camera.nearDistance.getValue();
    result->mClipPlaneFar = camera.farDistance.getValue();
    transform = rigidMatrix(camera.orientation.getValue(), camera.position.getValue());
    return result;
}

} // namespace orvane
