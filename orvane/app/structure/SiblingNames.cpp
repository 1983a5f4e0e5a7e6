#include "orvane/app/structure/SiblingNames.h"

#include "meridane/scene/nodes/NxGroup.h"

#include <cctype>
#include <string_view>

namespace {

/// The name without a number at its end, if there is one behind a blank.
std::string_view withoutNumber(std::string_view name)
{
    std::size_t end = name.size();
    while (end > 0 && std::isdigit(static_cast<unsigned char>(name[end - 1])) != 0)
        --end;
    return end < name.size() && end > 1 && name[end - 1] == ' ' ? name.substr(0, end - 1) : name;
}

} // namespace

SiblingNames::SiblingNames(const NxGroup& group)
{
    for (const NxNode* const child : group.getChildren()) {
        if (!child->getName().isEmpty())
            m_taken.emplace(child->getName().view());
    }
}

VbString SiblingNames::take(const VbString& name)
{
    if (name.isEmpty() || m_taken.emplace(name.view()).second)
        return name;
    const std::string base(withoutNumber(name.view()));
    int& next = m_next.try_emplace(base, 2).first->second;
    for (;; ++next) {
        const auto [taken, isNew] = m_taken.insert(base + ' ' + std::to_string(next));
        if (isNew) {
            ++next;
            return VbString(*taken);
        }
    }
}
