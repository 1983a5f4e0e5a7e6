#include "meridane/scene/check/detail/ClassFindings.h"

#include "meridane/base/values/MatrixInverse.h"
#include "meridane/scene/fields/EffectiveField.h"
#include "meridane/scene/nodes/NxCamera.h"
#include "meridane/scene/nodes/NxLight.h"
#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"
#include "meridane/scene/nodes/NxSwitch.h"
#include "meridane/scene/nodes/NxTexture.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace meridane {
namespace {

bool isZero(const VbVec3f& vector)
{
    return vector == VbVec3f();
}

bool isFinite(const VbMatrix& matrix)
{
    for (std::size_t row = 0; row < 4; ++row) {
        if (!std::all_of(matrix[row].begin(), matrix[row].end(), [](float element) { return std::isfinite(element); }))
            return false;
    }
    return true;
}

void checkRotation(NxSFRotation& field, const Report& report)
{
    const VbRotation& rotation = effectiveField(field).getValue();
    if (isZero(rotation.getAxis()))
        report(NxProblemKind::ZeroAxis, &field).isMendable = true;
}

void checkTransform(NxTransform& transform, const Report& report)
{
    const VbVec3f& scale = effectiveField(transform.scaleFactor).getValue();
    if (scale[0] == 0 || scale[1] == 0 || scale[2] == 0)
        report(NxProblemKind::ZeroScale, &transform.scaleFactor);
    checkRotation(transform.rotation, report);
}

void checkMatrix(NxMatrixTransform& transform, const Report& report)
{
    const VbMatrix& matrix = effectiveField(transform.matrix).getValue();
    // A matrix with other numbers is reported for these.
    if (isFinite(matrix) && !inverse(matrix))
        report(NxProblemKind::SingularMatrix, &transform.matrix);
}

void checkCamera(NxCamera& camera, const Report& report)
{
    const float nearest = effectiveField(camera.nearDistance).getValue();
    const float farthest = effectiveField(camera.farDistance).getValue();
    if (farthest <= nearest)
        report(NxProblemKind::CameraDistances, &camera.farDistance);
    checkRotation(camera.orientation, report);
}

void checkLight(NxLight& light, const Report& report)
{
    if (!effectiveField(light.on).getValue())
        return;
    const VbColor& color = effectiveField(light.color).getValue();
    const auto reportDark
        = [&](NxField& field, const char* why) { report(NxProblemKind::LightWithoutEffect, &field).detail = why; };
    if (effectiveField(light.intensity).getValue() == 0)
        reportDark(light.intensity, "its intensity is 0");
    else if (isZero(color))
        reportDark(light.color, "its colour is black");
    if (auto* const point = dynamic_cast<NxPointLight*>(&light)) {
        if (isZero(effectiveField(point->attenuation).getValue()))
            reportDark(point->attenuation, "all parts of its attenuation are 0");
    }
    if (auto* const spot = dynamic_cast<NxSpotLight*>(&light)) {
        if (effectiveField(spot->cutOffAngle).getValue() == 0)
            reportDark(spot->cutOffAngle, "the angle of its cone is 0");
        if (isZero(effectiveField(spot->direction).getValue()))
            report(NxProblemKind::ZeroAxis, &spot->direction).isMendable = true;
    }
}

void checkSwitch(NxSwitch& node, const Report& report)
{
    const int child = effectiveField(node.whichChild).getValue();
    if (child == NxSwitch::NONE || child == NxSwitch::ALL || (child >= 0 && child < node.getNumChildren()))
        return;
    NxSceneProblem& problem = report(NxProblemKind::SwitchIndex, &node.whichChild);
    problem.total = static_cast<std::size_t>(node.getNumChildren());
    problem.isMendable = true;
}

void checkTexture(NxTexture& texture, int maxSide, const Report& report)
{
    VbVec2s size;
    int components = 0;
    const bool hasImage = effectiveField(texture.image).getValue(size, components) != nullptr;
    if (!hasImage && effectiveField(texture.filePath).getValue().isEmpty())
        report(NxProblemKind::NoImage, &texture.image);
    if (hasImage && (size[0] > maxSide || size[1] > maxSide)) {
        NxSceneProblem& problem = report(NxProblemKind::ImageTooLarge, &texture.image);
        problem.limit = static_cast<std::size_t>(maxSide);
        problem.detail = imageSizeText(size[0], size[1]);
    }
}

} // namespace

std::string imageSizeText(int width, int height)
{
    return std::to_string(width) + " by " + std::to_string(height);
}

bool hasOwnImage(const NxTexture& texture)
{
    VbVec2s size;
    int components = 0;
    return effectiveField(texture.image).getValue(size, components) != nullptr;
}

void findByClass(NxNode& node, ClassPlan::Role role, const NxCheckOptions& options, const Report& report)
{
    using Role = ClassPlan::Role;
    switch (role) {
    case Role::Group:
        if (auto* const transform = dynamic_cast<NxTransform*>(&node))
            checkTransform(*transform, report);
        else if (auto* const matrix = dynamic_cast<NxMatrixTransform*>(&node))
            checkMatrix(*matrix, report);
        break;
    case Role::Switch:
        checkSwitch(static_cast<NxSwitch&>(node), report);
        break;
    case Role::Camera:
        checkCamera(static_cast<NxCamera&>(node), report);
        break;
    case Role::Light:
        checkLight(static_cast<NxLight&>(node), report);
        break;
    case Role::Texture:
        checkTexture(static_cast<NxTexture&>(node), options.maxImageSide, report);
        break;
    case Role::UnknownGroup:
        report(NxProblemKind::UnknownClass, nullptr);
        return; // whatever its children mean
    case Role::Mesh:
    case Role::Material:
    case Role::Complexity:
    case Role::Bystander:
    case Role::Unknown:
        return;
    }
    const bool isGroup = role == Role::Group || role == Role::Switch;
    if (isGroup && node.getChildren().empty())
        report(NxProblemKind::EmptyGroup, nullptr);
}

} // namespace meridane
