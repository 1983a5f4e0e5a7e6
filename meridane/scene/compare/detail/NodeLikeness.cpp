#include "meridane/scene/compare/detail/NodeLikeness.h"

#include "meridane/scene/compare/detail/HashMix.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/nodes/NxNode.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <vector>

namespace meridane {

namespace {

/// As many children are compared, so that the time doesn't depend on the size of the groups.
constexpr std::size_t comparedChildren = 64;

struct Parts {
    std::size_t all = 0;
    std::size_t same = 0;
};

void countFields(NxNode& left, NxNode& right, Parts& parts)
{
    const NxFieldData* const data = left.getFieldData();
    if (data != right.getFieldData())
        return;
    for (int i = 0; i < data->getNumFields(); ++i) {
        const NxField& leftField = *data->getField(&left, i);
        const NxField& rightField = *data->getField(&right, i);
        const bool isSame = leftField.isSame(rightField) && leftField.isIgnored() == rightField.isIgnored();
        if (isSame && !leftField.isIgnored() && data->getDefault(i)->isSame(leftField))
            continue;
        ++parts.all;
        parts.same += isSame ? 1 : 0;
    }
}

void countUnknownFields(const NxNode& left, const NxNode& right, Parts& parts)
{
    const auto& leftFields = left.getUnknownFields();
    const auto& rightFields = right.getUnknownFields();
    parts.all += std::max(leftFields.size(), rightFields.size());
    for (std::size_t i = 0; i < std::min(leftFields.size(), rightFields.size()); ++i) {
        if (leftFields[i].name == rightFields[i].name && leftFields[i].text == rightFields[i].text)
            ++parts.same;
    }
}

std::vector<std::uint64_t> keysOfChildren(const NxNode& node)
{
    std::vector<std::uint64_t> keys;
    for (const NxNode* const child : node.getChildren()) {
        if (keys.size() == comparedChildren)
            break;
        keys.push_back(mixHash(hashOf(child->getName().view()), hashOf(child->getClassName())));
    }
    std::sort(keys.begin(), keys.end());
    return keys;
}

void countChildren(const NxNode& left, const NxNode& right, Parts& parts)
{
    const std::vector<std::uint64_t> leftKeys = keysOfChildren(left);
    const std::vector<std::uint64_t> rightKeys = keysOfChildren(right);
    std::vector<std::uint64_t> both;
    std::set_intersection(
        leftKeys.begin(), leftKeys.end(), rightKeys.begin(), rightKeys.end(), std::back_inserter(both));
    parts.all += std::max(leftKeys.size(), rightKeys.size());
    parts.same += both.size();
}

} // namespace

bool areHalfAlike(NxNode& left, NxNode& right)
{
    Parts parts;
    countFields(left, right, parts);
    countUnknownFields(left, right, parts);
    countChildren(left, right, parts);
    return 2 * parts.same >= parts.all;
}

} // namespace meridane
