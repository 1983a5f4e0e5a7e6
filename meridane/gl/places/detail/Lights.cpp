#include "meridane/gl/places/detail/Lights.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/places/detail/NodeRecords.h"
#include "meridane/scene/fields/EffectiveField.h"
#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace meridane {
namespace {

float kindValue(LightKind kind)
{
    return static_cast<float>(kind);
}

VbVec3f placedDirection(const NxSFVec3f& field, const Matrix4d& worldTransform)
{
    return normalized(transformDirection(effectiveField(field).getValue(), worldTransform), VbVec3f(0, 0, -1));
}

VbVec3f placedPoint(const NxSFVec3f& field, const Matrix4d& worldTransform, const VbVec3d& eye)
{
    const VbVec3d point = transformPoint(effectiveField(field).getValue(), worldTransform);
    return narrowed(subtract(isFinite(point) ? point : VbVec3d(), eye));
}

float usable(float value, float max)
{
    return value > 0 ? std::min(value, max) : 0; // 0 for a NaN
}

void addPoint(LightValues& values, const NxPointLight& light, const Matrix4d& worldTransform, const VbVec3d& eye)
{
    constexpr float max = 1e18F;
    values.location = placedPoint(light.location, worldTransform, eye);
    values.kind = kindValue(LightKind::Point);
    values.attenuation = effectiveField(light.attenuation).getValue();
    for (std::size_t i = 0; i < 3; ++i)
        values.attenuation[i] = usable(values.attenuation[i], max);
    if (values.attenuation == VbVec3f())
        values.attenuation[0] = 1;
}

void addSpot(LightValues& values, const NxSpotLight& light, const Matrix4d& worldTransform, const VbVec3d& eye)
{
    values.location = placedPoint(light.location, worldTransform, eye);
    values.kind = kindValue(LightKind::Spot);
    values.attenuation = VbVec3f(1, 0, 0);
    values.outerAngle = usable(effectiveField(light.cutOffAngle).getValue(), std::numbers::pi_v<float> / 2);
    values.innerAngle = values.outerAngle * (1 - usable(effectiveField(light.dropOffRate).getValue(), 1));
    values.direction = placedDirection(light.direction, worldTransform);
}

} // namespace

LightList::LightList(
    std::shared_ptr<const LightList> above, LightRecord& light, Id worldTransform, NodeRecords& records)
    : m_above(std::move(above))
    , m_light(&light)
    , m_records(&records)
    , m_worldTransform(worldTransform)
    , m_count(m_above ? m_above->count() + 1 : 1)
{
    NodeRecords::retain(light);
}

LightList::~LightList()
{
    m_records->release(*m_light);
}

LightValues lightValues(const NxLight* light, const Matrix4d& worldTransform, const VbVec3d& eye)
{
    LightValues values;
    if (light == nullptr || !effectiveField(light->on).getValue())
        return values; // black light from nowhere
    const float intensity = usable(effectiveField(light->intensity).getValue(), 1);
    const VbColor& color = effectiveField(light->color).getValue();
    for (std::size_t i = 0; i < 3; ++i)
        values.color[i] = usable(color[i], 1) * intensity;
    if (const auto* sun = dynamic_cast<const NxDirectionalLight*>(light)) {
        values.kind = kindValue(LightKind::Directional);
        values.direction = placedDirection(sun->direction, worldTransform);
    } else if (const auto* lamp = dynamic_cast<const NxPointLight*>(light)) {
        addPoint(values, *lamp, worldTransform, eye);
    } else if (const auto* spot = dynamic_cast<const NxSpotLight*>(light)) {
        addSpot(values, *spot, worldTransform, eye);
    }
    return values;
}

LightValues cameraLightValues()
{
    LightValues values;
    values.kind = kindValue(LightKind::AtCamera);
    values.color = VbVec3f(1, 1, 1);
    return values;
}

} // namespace meridane
