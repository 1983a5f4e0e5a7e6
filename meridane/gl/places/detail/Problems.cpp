#include "meridane/gl/places/detail/Problems.h"

#include "meridane/base/errors/NxDebugError.h"
#include "meridane/base/errors/NxReadError.h"
#include "meridane/base/values/MessageText.h"
#include "meridane/scene/nodes/NxNode.h"

namespace meridane {
namespace {

std::string nameOf(const NxNode& node)
{
    constexpr std::size_t maxBytes = 60;
    std::string name = node.getClassName();
    if (!node.getName().isEmpty())
        name.append(" '").append(excerpt(node.getName().view(), maxBytes)).append("'");
    return name;
}

} // namespace

bool Problems::isNews(NodeRecord& record, Problem problem, bool isThere)
{
    const auto bit = static_cast<std::uint16_t>(1U << static_cast<unsigned int>(problem));
    if (!isThere) {
        record.reportedProblems = static_cast<std::uint16_t>(record.reportedProblems & ~bit);
        return false;
    }
    const bool wasReported = (record.reportedProblems & bit) != 0;
    record.reportedProblems = static_cast<std::uint16_t>(record.reportedProblems | bit);
    return !wasReported && record.node() != nullptr;
}

void Problems::report(const NodeRecord& record, Problem problem, const std::string& text)
{
    int& count = m_counts[static_cast<std::size_t>(problem)];
    if (++count > maxReports + 1)
        return;
    // The names of the node and its files come from the scene.
    std::string message = withoutMarkup(nameOf(*record.node()) + ": " + text);
    if (count > maxReports)
        message += "; more nodes of the same problem aren't reported";
    if (problem == Problem::ImageFile)
        NxReadError::post(VbString(), 0, 0, VbString(message));
    else
        NxDebugError::post(NxDebugError::Warning, VbString(message));
}

} // namespace meridane
