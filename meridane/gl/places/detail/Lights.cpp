#include "meridane/gl/places/detail/Lights.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/places/detail/EffectiveField.h"
#include "meridane/gl/places/detail/NodeRecords.h"
#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace meridane {
namespace {

enum class Part : std::size_t { Location, Color, Fading, Direction };

void put(LightValues& values, Part part, const VbVec3f& vector, float fourth)
{
    const std::size_t place = 4 * static_cast<std::size_t>(part);
    for (std::size_t i = 0; i < 3; ++i)
        values[place + i] = vector[i];
    values[place + 3] = fourth;
}

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

float usable(float value, float greatest)
{
    return value > 0 ? std::min(value, greatest) : 0; // 0 for a NaN
}

void putPoint(LightValues& values, const NxPointLight& light, const Matrix4d& worldTransform, const VbVec3d& eye)
{
    constexpr float greatest = 1e18F;
    put(values, Part::Location, placedPoint(light.location, worldTransform, eye), kindValue(LightKind::Point));
    VbVec3f parts = effectiveField(light.attenuation).getValue();
    for (std::size_t i = 0; i < 3; ++i)
        parts[i] = usable(parts[i], greatest);
    if (parts == VbVec3f())
        parts[0] = 1;
    put(values, Part::Fading, parts, 0);
}

void putSpot(LightValues& values, const NxSpotLight& light, const Matrix4d& worldTransform, const VbVec3d& eye)
{
    const float outer = usable(effectiveField(light.cutOffAngle).getValue(), std::numbers::pi_v<float> / 2);
    const float inner = outer * (1 - usable(effectiveField(light.dropOffRate).getValue(), 1));
    put(values, Part::Location, placedPoint(light.location, worldTransform, eye), kindValue(LightKind::Spot));
    put(values, Part::Fading, VbVec3f(1, 0, 0), outer);
    put(values, Part::Direction, placedDirection(light.direction, worldTransform), inner);
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
    LightValues values{};
    if (light == nullptr || !effectiveField(light->on).getValue())
        return values; // black light from nowhere
    const float intensity = usable(effectiveField(light->intensity).getValue(), 1);
    VbVec3f color = effectiveField(light->color).getValue();
    for (std::size_t i = 0; i < 3; ++i)
        color[i] = usable(color[i], 1) * intensity;
    put(values, Part::Color, color, 0);
    if (const auto* sun = dynamic_cast<const NxDirectionalLight*>(light)) {
        put(values, Part::Location, VbVec3f(), kindValue(LightKind::Directional));
        put(values, Part::Direction, placedDirection(sun->direction, worldTransform), 0);
    } else if (const auto* lamp = dynamic_cast<const NxPointLight*>(light)) {
        putPoint(values, *lamp, worldTransform, eye);
    } else if (const auto* spot = dynamic_cast<const NxSpotLight*>(light)) {
        putSpot(values, *spot, worldTransform, eye);
    }
    return values;
}

LightValues cameraLightValues()
{
    LightValues values{};
    put(values, Part::Location, VbVec3f(), kindValue(LightKind::AtCamera));
    put(values, Part::Color, VbVec3f(1, 1, 1), 0);
    return values;
}

} // namespace meridane
