#include "orvane/app/structure/PlaceKeeping.h"

#include "orvane/app/scene/NodeName.h"
#include "orvane/app/structure/detail/TransformValues.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/scene/edit/NodeCopier.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxTexture.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <utility>

namespace {

struct PlaceKeepingTexts {
    Q_DECLARE_TR_FUNCTIONS(PlaceKeeping)
};

bool hasPlace(const NxNode& node)
{
    const std::array types{NxMaterial::getClassTypeId(), NxTexture::getClassTypeId(), NxComplexity::getClassTypeId()};
    return std::ranges::none_of(types, [&node](NxType type) { return node.isOfType(type); });
}

std::vector<const NxGroup*> transformsOf(const PlaceKeeping::Path& path)
{
    std::vector<const NxGroup*> transforms;
    for (const NxGroup* const group : path) {
        if (meridane::localTransformOf(*group) != meridane::Matrix4d())
            transforms.push_back(group);
    }
    return transforms;
}

/// The product of the transforms from `first` on.
meridane::Matrix4d productOf(const std::vector<const NxGroup*>& transforms, std::size_t first)
{
    meridane::Matrix4d product;
    for (std::size_t i = first; i < transforms.size(); ++i)
        product = multiply(meridane::localTransformOf(*transforms[i]), product);
    return product;
}

/// The fields in which two nodes of a class differ.
std::vector<int> differentFields(NxNode& node, NxNode& other)
{
    NxFieldData& data = *node.getFieldData();
    std::vector<int> fields;
    for (int index = 0; index < data.getNumFields(); ++index) {
        const NxField& field = *data.getField(&node, index);
        const NxField& changed = *data.getField(&other, index);
        if (field.isIgnored() != changed.isIgnored() || !field.isSame(changed))
            fields.push_back(index);
    }
    return fields;
}

} // namespace

bool PlaceKeeping::isSamePlace(const Path& from, const Path& to)
{
    compare(from, to);
    return m_isSame;
}

orvane::Result<NxRef<NxNode>> PlaceKeeping::keep(NxNode& node, const Path& from, const Path& to, bool staysElsewhere)
{
    if (isSamePlace(from, to) || !hasPlace(node))
        return NxRef<NxNode>(&node);
    if (!m_isPossible)
        return orvane::Failure{
            PlaceKeepingTexts::tr("%1 can't keep its place in %2, which is scaled to nothing or has a "
                                  "matrix that can't be reversed. Turn off Keep Place in the Edit menu to move it.")
                .arg(orvane::nodeName(node), orvane::nodeName(*to.back()))};
    if (!staysElsewhere && m_uses.count(node) < 2 && change(node))
        return NxRef<NxNode>(&node);
    return wrapped(node);
}

void PlaceKeeping::addTo(NxSceneChanges& changes)
{
    for (NxSceneChanges::NodeChange& change : m_changes)
        changes.add(std::move(change));
    m_changes.clear();
}

// What both have above them doesn't matter, however far from the origin it is.
void PlaceKeeping::compare(const Path& from, const Path& to)
{
    if (from == m_from && to == m_to)
        return;
    m_from = from;
    m_to = to;
    const std::vector<const NxGroup*> before = transformsOf(from);
    const std::vector<const NxGroup*> after = transformsOf(to);
    const auto common = static_cast<std::size_t>(std::ranges::mismatch(before, after).in1 - before.begin());
    const meridane::Matrix4d old = productOf(before, common);
    const meridane::Matrix4d present = productOf(after, common);
    const std::optional<meridane::Matrix4d> inverse = orvane::inverseOf(present);
    m_difference = inverse ? multiply(old, *inverse) : meridane::Matrix4d();
    m_isPossible = inverse && orvane::isAffine(present) && orvane::isAffine(m_difference);
    m_isSame = before == after
        || (m_isPossible
            && orvane::isIdentity(m_difference, std::max(orvane::distanceOf(old), orvane::distanceOf(present))));
}

/// Gives the node values that keep its place, if there are such values.
bool PlaceKeeping::change(NxNode& node)
{
    NxRef<NxNode> other = meridane::NodeCopier::copyAlone(node);
    if (!other || !orvane::applyTransform(*other, m_difference))
        return false;
    std::vector<int> fields = differentFields(node, *other);
    m_changes.push_back({NxRef<NxNode>(&node), std::move(other), false, std::move(fields)});
    return true;
}

NxRef<NxNode> PlaceKeeping::wrapped(NxNode& node)
{
    ++m_added;
    NxRef<NxGroup> above(new NxTransform);
    if (!orvane::applyTransform(*above, m_difference)) {
        above = new NxMatrixTransform;
        static_cast<NxMatrixTransform&>(*above).matrix.setValue(meridane::narrowed(m_difference));
    }
    above->addChild(&node);
    return above;
}
