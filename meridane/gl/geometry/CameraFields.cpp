#include "meridane/gl/geometry/CameraFields.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/NxViewpoint.h"
#include "meridane/scene/nodes/NxOrthographicCamera.h"
#include "meridane/scene/nodes/NxPerspectiveCamera.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace meridane {

std::vector<NxField*> CameraFields::fields() const
{
    std::vector<NxField*> fields{&m_camera.position, &m_camera.orientation};
    if (auto* const perspective = dynamic_cast<NxPerspectiveCamera*>(&m_camera); perspective != nullptr)
        fields.push_back(&perspective->heightAngle);
    if (auto* const orthographic = dynamic_cast<NxOrthographicCamera*>(&m_camera); orthographic != nullptr)
        fields.push_back(&orthographic->height);
    return fields;
}

CameraFields::Result CameraFields::set(const NxViewpoint& viewpoint, const Matrix4d& parentToScene)
{
    const std::optional<Matrix4d> sceneToParent = inverse(parentToScene);
    const VbVec3d place = sceneToParent ? transformPoint(viewpoint.position, *sceneToParent) : VbVec3d();
    if (!sceneToParent || !isFinite(place))
        return Result::Impossible;
    NxViewpoint local;
    local.lookAlong(transformDirection(viewpoint.viewDirection(), *sceneToParent),
        transformDirection(viewpoint.upAxis(), *sceneToParent));
    m_camera.position.setValue(narrowed(place));
    m_camera.orientation.setValue(local.orientation);
    const bool isOrthographic = viewpoint.projection == NxViewpoint::ORTHOGRAPHIC;
    auto* const perspective = dynamic_cast<NxPerspectiveCamera*>(&m_camera);
    auto* const orthographic = dynamic_cast<NxOrthographicCamera*>(&m_camera);
    if (perspective != nullptr && !isOrthographic) {
        perspective->heightAngle.setValue(viewpoint.heightAngle);
        return Result::Set;
    }
    if (orthographic != nullptr && isOrthographic) {
        const double upScale = length(transformDirection(local.upAxis(), parentToScene));
        orthographic->height.setValue(static_cast<float>(static_cast<double>(viewpoint.height) / upScale));
        return Result::Set;
    }
    return Result::WithoutSize;
}

void CameraFields::include(const VbVec3f& min, const VbVec3f& max)
{
    constexpr double margin = 1.5;
    constexpr double share = 1e-4; // of the far distance, so that depths stay apart
    const VbVec3d place(m_camera.position.getValue());
    double farthest = 0;
    for (unsigned corner = 0; corner < 8; ++corner) {
        VbVec3d way;
        for (std::size_t i = 0; i < 3; ++i)
            way[i] = static_cast<double>((corner >> i & 1U) != 0 ? max[i] : min[i]) - place[i];
        farthest = std::max(farthest, length(way));
    }
    if (!std::isfinite(farthest * margin))
        return;
    if (farthest > static_cast<double>(m_camera.farDistance.getValue()))
        m_camera.farDistance.setValue(static_cast<float>(farthest * margin));
    if (const double nearest = farthest * share;
        nearest > 0 && nearest < static_cast<double>(m_camera.nearDistance.getValue()))
        m_camera.nearDistance.setValue(static_cast<float>(nearest));
}

} // namespace meridane
