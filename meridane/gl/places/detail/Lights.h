#pragma once

#include "meridane/base/values/VbVec.h"
#include "meridane/gl/geometry/Matrix4d.h"
#include "meridane/gl/places/detail/LightRecord.h"
#include "meridane/scene/nodes/NxLight.h"

#include <array>
#include <cstddef>
#include <memory>

namespace meridane {

class NodeRecords;

/// The lights that shine on a mesh: those before it in its group and in the groups above. A linked list that doesn't
/// change; lists with the same first lights share those entries.
class LightList {
public:
    /// How many lights shine on one mesh at most.
    static constexpr std::uint32_t maxLights = 32;

    /// `worldTransform` is the number of the matrix of the light's group (see `PlaceTable`).
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

/// The kinds of light that shaders know.
enum class LightKind { Directional, Point, Spot, AtCamera };

/// A light as the shaders take it: four vectors of four floats, in scene units and radians.
struct LightValues {
    VbVec3f location; ///< relative to the eye
    float kind = 0; ///< a `LightKind`
    VbVec3f color; ///< times the intensity
    float unused = 0;
    VbVec3f attenuation; ///< constant, linear and quadratic
    float outerAngle = 0; ///< of the cone of a spot light, from the axis to the border
    VbVec3f direction; ///< of length 1
    float innerAngle = 0; ///< up to which a spot light is as bright as on the axis
};
static_assert(sizeof(LightValues) == 64);
static_assert(offsetof(LightValues, kind) == 12 && offsetof(LightValues, color) == 16);
static_assert(offsetof(LightValues, attenuation) == 32 && offsetof(LightValues, outerAngle) == 44);
static_assert(offsetof(LightValues, direction) == 48 && offsetof(LightValues, innerAngle) == 60);

/// The uniform block of the lights, in the layout std140. Only the first `count` lights need be written.
struct LightsBlock {
    float count = 0;
    std::array<float, 3> unused{};
    std::array<LightValues, LightList::maxLights> lights;
};
static_assert(offsetof(LightsBlock, lights) == 16);
static_assert(sizeof(LightsBlock) == 16 + LightList::maxLights * sizeof(LightValues));

[[nodiscard]] LightValues lightValues(
    const NxLight* light, const Matrix4d& worldTransform, const VbVec3d& eye = VbVec3d());
/// The light at the camera, for what no light shines on.
[[nodiscard]] LightValues cameraLightValues();

} // namespace meridane
