#include "meridane/gl/places/detail/Problems.h"

#include "meridane/base/errors/NxDebugError.h"
#include "meridane/base/errors/NxReadError.h"
#include "meridane/base/values/MessageText.h"
#include "meridane/scene/nodes/NxNode.h"

namespace meridane {
namespace {

std::string nameOf(const NxNode& node)
{
    constexpr std::size_t mostBytes = 60;
    std::string name = node.getClassName();
    if (!node.getName().isEmpty())
        name.append(" '").append(excerpt(node.getName().view(), mostBytes)).append("'");
    return name;
}

} // namespace

bool Problems::isNews(NodeRecord& record, Problem problem, bool isThere)
{
    const auto bit = static_cast<std::uint16_t>(1U << static_cast<unsigned int>(problem));
    if (!isThere) {
        record.toldProblems = static_cast<std::uint16_t>(record.toldProblems & ~bit);
        return false;
    }
    const bool wasTold = (record.toldProblems & bit) != 0;
    record.toldProblems = static_cast<std::uint16_t>(record.toldProblems | bit);
    return !wasTold && record.node() != nullptr;
}

void Problems::report(const NodeRecord& record, Problem problem, const std::string& text)
{
    int& count = m_counts[static_cast<std::size_t>(problem)];
    if (++count > mostReports + 1)
        return;
    // The names of the node and its files come from the scene.
    std::string message = withoutMarkup(nameOf(*record.node()) + ": " + text);
    if (count > mostReports)
        message += "; more nodes of the same problem aren't reported";
    if (problem == Problem::ImageFile)
        NxReadError::post(VbString(), 0, 0, VbString(message));
    else
        NxDebugError::post(NxDebugError::Warning, VbString(message));
}

} // namespace meridane
