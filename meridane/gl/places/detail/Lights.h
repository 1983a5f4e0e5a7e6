#pragma once

#include "meridane/base/values/VbVec.h"
#include "meridane/gl/geometry/Matrix4d.h"
#include "meridane/gl/places/detail/LightRecord.h"
#include "meridane/scene/nodes/NxLight.h"

#include <array>
#include <memory>

namespace meridane {

class NodeRecords;

/// The lights that shine on something: those of a group so far, and those of the groups above. Immutable but for what
/// the lights themselves hold; lists that share their beginning share it in memory as well.
class LightList {
public:
    /// How many lights shine on one mesh at most.
    static constexpr std::uint32_t maxLights = 32;

    /// `worldTransform` names the matrix of the group that the light stands in.
    LightList(std::shared_ptr<const LightList> above, LightRecord& light, Id worldTransform, NodeRecords& records);
    LightList(const LightList&) = delete;
    LightList& operator=(const LightList&) = delete;
    ~LightList();

    [[nodiscard]] const LightList* above() const noexcept { return m_above.get(); }
    [[nodiscard]] const LightRecord& light() const noexcept { return *m_light; }
    [[nodiscard]] Id worldTransform() const noexcept { return m_worldTransform; }
    /// The number of lights, those above included.
    [[nodiscard]] std::uint32_t count() const noexcept { return m_count; }

private:
    std::shared_ptr<const LightList> m_above;
    LightRecord* m_light;
    NodeRecords* m_records;
    Id m_worldTransform;
    std::uint32_t m_count;
};

/// A light as the shaders take it, all in the units of the scene: where it is relative to the eye, and its kind; its
/// colour; how it fades, and the angle of its cone; where it shines, and the angle up to which it is as bright as on
/// the axis.
using LightValues = std::array<float, 16>;
/// The kinds of light that shaders know.
enum class LightKind { Directional, Point, Spot, AtCamera };

[[nodiscard]] LightValues lightValues(
    const NxLight* light, const Matrix4d& worldTransform, const VbVec3d& eye = VbVec3d());
/// The light at the camera, for what no light shines on.
[[nodiscard]] LightValues cameraLightValues();

} // namespace meridane
