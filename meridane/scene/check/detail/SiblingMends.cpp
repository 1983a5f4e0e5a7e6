#include "meridane/scene/check/detail/SiblingMends.h"

#include "meridane/scene/check/detail/MendRecorder.h"
#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxLight.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace meridane {
namespace {

/// The class of the nodes that a mend of that kind removes; the bad type for another kind.
NxType removedClass(NxProblemKind kind)
{
    switch (kind) {
    case NxProblemKind::UnusedMaterial:
        return NxMaterial::getClassTypeId();
    case NxProblemKind::UnusedTexture:
        return NxTexture::getClassTypeId();
    case NxProblemKind::UnusedLight:
        return NxLight::getClassTypeId();
    case NxProblemKind::UnusedComplexity:
        return NxComplexity::getClassTypeId();
    default:
        return {};
    }
}

std::vector<int> placesOf(const NxSceneProblem& problem)
{
    return problem.places ? *problem.places : std::vector<int>{problem.place};
}

} // namespace

void SiblingMends::add(const NxSceneProblem& problem)
{
    NxGroup& group = *problem.group;
    // The list of children has changed since if the first one isn't where it was.
    if (!problem.isMendable || group.getChild(problem.place) != problem.node.get())
        return;
    Group& mends = m_groups[&group];
    mends.group = &group;
    const NxType removed = removedClass(problem.kind);
    bool isNoted = false;
    for (const int place : placesOf(problem)) {
        const NxNode* const child = group.getChild(place);
        if (child == nullptr)
            continue;
        if (problem.kind == NxProblemKind::DuplicateName && !child->getName().isEmpty()) {
            mends.names.emplace(child->getName().view());
            isNoted = true;
        } else if (!removed.isBad() && child->getTypeId().isDerivedFrom(removed)) {
            mends.removed.push_back(place);
            isNoted = true;
        }
    }
    mends.problems += isNoted ? 1 : 0;
}

std::size_t SiblingMends::apply(MendRecorder& recorder)
{
    std::size_t mended = 0;
    for (auto& [address, mends] : m_groups) {
        bool isChanged = !mends.names.empty() && renameNamesakes(mends, recorder);
        std::sort(mends.removed.begin(), mends.removed.end());
        mends.removed.erase(std::unique(mends.removed.begin(), mends.removed.end()), mends.removed.end());
        if (!mends.removed.empty()) {
            recorder.removeChildren(*mends.group, mends.removed);
            isChanged = true;
        }
        mended += isChanged ? mends.problems : 0;
    }
    m_groups.clear();
    return mended;
}

// The second one of "arm" becomes "arm 2", or the next number that no sibling has.
bool SiblingMends::renameNamesakes(const Group& group, MendRecorder& recorder)
{
    const auto children = group.group->getChildren();
    std::unordered_set<std::string> taken;
    for (const NxNode* const child : children)
        taken.emplace(child->getName().view());
    std::unordered_map<std::string, int> numbers; // the last one given for a name
    std::unordered_set<const NxNode*> seen; // a node may be there twice
    bool isRenamed = false;
    for (NxNode* const child : children) {
        const std::string name(child->getName().view());
        if (group.names.find(name) == group.names.end() || !seen.insert(child).second)
            continue;
        const auto [number, isFirst] = numbers.try_emplace(name, 1);
        if (isFirst)
            continue;
        std::string other;
        do {
            ++number->second;
            other = name + ' ' + std::to_string(number->second);
        } while (!taken.insert(other).second);
        recorder.rename(*child, VbString(other));
        isRenamed = true;
    }
    return isRenamed;
}

} // namespace meridane
