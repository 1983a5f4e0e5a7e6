#include "meridane/query/detail/ClassPattern.h"

#include "meridane/base/types/NxTypedObject.h"
#include "meridane/base/values/Unicode.h"
#include "meridane/base/values/VbName.h"
#include "meridane/query/detail/TextFolding.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/nodes/NxNode.h"
#include "meridane/scene/nodes/NxUnknownNode.h"

#include <algorithm>

namespace meridane {
namespace {

std::string foldedNameOf(NxType type)
{
    return foldText(latin1ToUtf8(type.getName().getString()));
}

/// Without the letters that say whether a class of fields has one value or many.
std::string_view withoutKind(std::string_view name)
{
    return name.starts_with("sf") || name.starts_with("mf") ? name.substr(2) : name;
}

} // namespace

ClassPattern::ClassPattern(std::string_view name)
    : m_name(foldText(name))
{
    const std::vector<NxType> all = NxType::getAllDerivedFrom(NxTypedObject::getClassTypeId());
    m_isWhole = std::ranges::any_of(all, [this](NxType type) {
        const std::string known = foldedNameOf(type);
        return known == m_name || (type.isDerivedFrom(NxField::getClassTypeId()) && withoutKind(known) == m_name);
    });
}

bool ClassPattern::matches(const NxNode& node) const
{
    return matches(node, node.getTypeId());
}

bool ClassPattern::matches(const NxNode& node, NxType type) const
{
    // A node whose class isn't known has the name that its file gave.
    return matches(type)
        || (type.isDerivedFrom(NxUnknownNode::getClassTypeId()) && matchesName(foldText(node.getClassName())));
}

bool ClassPattern::matches(const NxField& field) const
{
    return matches(field.getTypeId());
}

void ClassPattern::addFound(std::string_view name, FoundParts& parts) const
{
    const std::string folded = foldText(name);
    const std::size_t start = folded.size() - withoutKind(folded).size();
    if (matchesName(folded))
        parts.push_back({0, m_name.size()});
    else if (matchesName(withoutKind(folded)))
        parts.push_back({start, m_name.size()});
}

bool ClassPattern::matches(NxType type) const
{
    return m_known.of(type, [this, type] { return matchesOneOf(type); });
}

bool ClassPattern::matchesOneOf(NxType type) const
{
    const bool isField = type.isDerivedFrom(NxField::getClassTypeId());
    for (; !type.isBad(); type = type.getParent()) {
        const std::string name = foldedNameOf(type);
        if (matchesName(name) || (isField && matchesName(withoutKind(name))))
            return true;
    }
    return false;
}

bool ClassPattern::matchesName(std::string_view name) const
{
    return m_isWhole ? name == m_name : name.starts_with(m_name);
}

} // namespace meridane
