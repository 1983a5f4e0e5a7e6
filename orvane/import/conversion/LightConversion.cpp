#include "orvane/import/conversion/LightConversion.h"

#include "orvane/import/conversion/TransformConversion.h"
#include "orvane/import/mending/Names.h"

#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"

#include <algorithm>
#include <numbers>

#include <assimp/matrix3x3.h>

namespace orvane {
namespace {

constexpr float rightAngle = std::numbers::pi_v<float> / 2;

VbVec3f directionOf(const aiLight& light, const aiMatrix4x4& transform)
{
    aiVector3D direction = aiMatrix3x3(transform) * light.mDirection;
    return direction.Length() > 0 ? toVec(direction.Normalize()) : VbVec3f(0, 0, -1);
}

NxRef<NxPointLight> toPointLight(const aiLight& light, const aiMatrix4x4& transform, float strength)
{
    NxRef<NxPointLight> result = new NxPointLight;
    result->location.setValue(toVec(transform * light.mPosition));
    // A light stronger than full brightness reaches farther instead.
    const float share = 1 / std::max(strength, 1.0F);
    const VbVec3f fading(std::max(light.mAttenuationConstant, 0.0F) * share,
        std::max(light.mAttenuationLinear, 0.0F) * share, std::max(light.mAttenuationQuadratic, 0.0F) * share);
    if (fading[0] + fading[1] + fading[2] > 0)
        result->attenuation.setValue(fading);
    return result;
}

NxRef<NxSpotLight> toSpotLight(const aiLight& light, const aiMatrix4x4& transform)
{
    NxRef<NxSpotLight> result = new NxSpotLight;
    result->location.setValue(toVec(transform * light.mPosition));
    result->direction.setValue(directionOf(light, transform));
    // A surface that shines does so to its whole front.
    const float outer = light.mType == aiLightSource_AREA ? rightAngle : light.mAngleOuterCone;
    const float inner = light.mType == aiLightSource_AREA ? 0 : light.mAngleInnerCone;
    if (outer > 0) {
        result->cutOffAngle.setValue(std::min(outer, rightAngle));
        result->dropOffRate.setValue(std::clamp(1 - inner / outer, 0.0F, 1.0F));
    }
    return result;
}

NxRef<NxDirectionalLight> toDirectionalLight(const aiLight& light, const aiMatrix4x4& transform)
{
    NxRef<NxDirectionalLight> result = new NxDirectionalLight;
    result->direction.setValue(directionOf(light, transform));
    return result;
}

NxRef<NxLight> makeLight(const aiLight& light, const aiMatrix4x4& transform, float strength)
{
    switch (light.mType) {
    case aiLightSource_DIRECTIONAL:
        return toDirectionalLight(light, transform);
    case aiLightSource_POINT:
        return toPointLight(light, transform, strength);
    case aiLightSource_SPOT:
    case aiLightSource_AREA:
        return toSpotLight(light, transform);
    default: // the library's enumeration has a last value that only makes it an int
        return {};
    }
}

} // namespace

NxRef<NxLight> toLight(const aiLight& light, const aiMatrix4x4& transform)
{
    const aiColor3D& color = light.mColorDiffuse;
    const float strength = std::max({color.r, color.g, color.b, 0.0F});
    NxRef<NxLight> result = makeLight(light, transform, strength);
    if (!result)
        return {};
    result->setName(toName(light.mName));
    // The brightest component is full, so that colour and brightness come apart in one way only.
    if (strength > 0)
        result->color.setValue(VbColor(color.r / strength, color.g / strength, color.b / strength));
    result->intensity.setValue(std::min(strength, 1.0F));
    return result;
}

std::unique_ptr<aiLight> toAiLight(const NxLight& light, aiMatrix4x4& transform)
{
    auto result = std::make_unique<aiLight>();
    VbVec3f location;
    VbVec3f direction(0, 0, -1);
    result->mAttenuationConstant = 1;
    if (const auto* sun = dynamic_cast<const NxDirectionalLight*>(&light)) {
        result->mType = aiLightSource_DIRECTIONAL;
        direction = sun->direction.getValue();
    } else if (const auto* lamp = dynamic_cast<const NxPointLight*>(&light)) {
        result->mType = aiLightSource_POINT;
        location = lamp->location.getValue();
        lamp->attenuation.getValue().getValue(
            result->mAttenuationConstant, result->mAttenuationLinear, result->mAttenuationQuadratic);
    } else if (const auto* spot = dynamic_cast<const NxSpotLight*>(&light)) {
        result->mType = aiLightSource_SPOT;
        location = spot->location.getValue();
        direction = spot->direction.getValue();
        result->mAngleOuterCone = spot->cutOffAngle.getValue();
        result->mAngleInnerCone = result->mAngleOuterCone * (1 - spot->dropOffRate.getValue());
    } else {
        return nullptr;
    }
    const aiVector3D up(0, 1, 0);
    const float intensity = light.intensity.getValue();
    const VbColor& color = light.color.getValue();
    result->mColorDiffuse = aiColor3D(color[0] * intensity, color[1] * intensity, color[2] * intensity);
    result->mColorSpecular = result->mColorDiffuse;
    result->mDirection = aiVector3D(0, 0, -1);
    result->mUp = up;
    transform = rigidMatrix(rotationTo(toAiVector(direction), up), location);
    return result;
}

} // namespace orvane
