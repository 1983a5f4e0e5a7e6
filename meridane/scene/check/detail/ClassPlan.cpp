#include "meridane/scene/check/detail/ClassPlan.h"

#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/fields/single/NxSFFilePathString.h"
#include "meridane/scene/nodes/NxCamera.h"
#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxLight.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxSwitch.h"
#include "meridane/scene/nodes/NxTexture.h"
#include "meridane/scene/nodes/NxUnknownNode.h"

namespace meridane {
namespace {

using Role = ClassPlan::Role;

Role roleOf(NxType type)
{
    const auto is = [type](NxType base) { return type.isDerivedFrom(base); };
    if (is(NxUnknownNode::getClassTypeId()))
        return Role::UnknownGroup;
    if (is(NxSwitch::getClassTypeId()))
        return Role::Switch;
    if (is(NxGroup::getClassTypeId()))
        return Role::Group;
    if (is(NxMesh::getClassTypeId()))
        return Role::Mesh;
    if (is(NxMaterial::getClassTypeId()))
        return Role::Material;
    if (is(NxTexture::getClassTypeId()))
        return Role::Texture;
    if (is(NxComplexity::getClassTypeId()))
        return Role::Complexity;
    if (is(NxLight::getClassTypeId()))
        return Role::Light;
    if (is(NxCamera::getClassTypeId()))
        return Role::Camera;
    return is(NxFieldGallery::getClassTypeId()) ? Role::Bystander : Role::Unknown;
}

template <typename Class>
bool isA(const NxField& field) noexcept
{
    return dynamic_cast<const Class*>(&field) != nullptr;
}

ClassPlan planOf(NxNode& node, const NxFieldData& data)
{
    ClassPlan plan;
    plan.role = roleOf(node.getTypeId());
    int index = -1;
    for (const NxField* const member : node.getFields()) {
        ++index;
        const NxField& field = *member;
        const NxFieldFacts& facts = data.getFacts(index);
        if (isA<NxSFFilePathString>(field))
            plan.files.push_back({index});
        const FieldComponents* const components = FieldComponents::of(field);
        if (components == nullptr)
            continue;
        ClassPlan::Numbers numbers{index, components, FieldRange(*components, facts), isA<NxMField>(field),
            !components->isWhole(), facts.hasHardRange()};
        // The indices of a mesh and the choice of a switch have checks of their own.
        if (!numbers.mayBeInfinite && (plan.role == Role::Mesh || plan.role == Role::Switch))
            numbers.hasRange = false;
        if (numbers.mayBeInfinite || numbers.hasRange)
            plan.numbers.push_back(numbers);
    }
    return plan;
}

} // namespace

const ClassPlan& ClassPlans::of(NxNode& node)
{
    NxFieldData* const data = node.getFieldData();
    constexpr unsigned int alignmentBits = 4;
    Recent& recent = m_recent[(reinterpret_cast<std::uintptr_t>(data) >> alignmentBits) % m_recent.size()];
    if (data == recent.data)
        return *recent.plan;
    const auto [found, isNew] = m_plans.try_emplace(data);
    if (isNew)
        found->second = planOf(node, *data);
    recent = {data, &found->second};
    return found->second;
}

} // namespace meridane
