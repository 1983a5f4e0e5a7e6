#include "meridane/query/Query.h"

#include "meridane/query/detail/QueryScanner.h"
#include "meridane/query/detail/QueryTree.h"

#include <algorithm>
#include <utility>

namespace meridane {
namespace {

FoundParts withoutOverlap(FoundParts parts)
{
    std::ranges::sort(parts, {}, &FoundPart::start);
    FoundParts joined;
    for (const FoundPart& part : parts) {
        if (joined.empty() || part.start > joined.back().start + joined.back().length) {
            joined.push_back(part);
            continue;
        }
        FoundPart& last = joined.back();
        last.length = std::max(last.length, part.start + part.length - last.start);
    }
    return joined;
}

} // namespace

std::variant<Query, QueryError> Query::parse(std::string_view text, Subject subject)
{
    QueryScanner scanner(text, subject);
    std::optional<QueryTree> tree = scanner.run();
    if (scanner.error())
        return *scanner.error();
    return tree ? Query(std::make_shared<const QueryTree>(*std::move(tree))) : Query();
}

bool Query::isAboutFields() const noexcept
{
    return m_tree != nullptr && m_tree->isAboutFields();
}

bool Query::matches(const NxNode& node) const
{
    return m_tree == nullptr || m_tree->matches(node);
}

bool Query::matches(const NxField& field) const
{
    return m_tree == nullptr || m_tree->matches(field);
}

FoundParts Query::foundIn(std::string_view text, SearchedText kind) const
{
    constexpr std::size_t mostBytes = 4096;
    FoundParts parts;
    if (m_tree != nullptr)
        m_tree->addFound(text.substr(0, mostBytes), kind, parts);
    return withoutOverlap(std::move(parts));
}

bool Query::matchesText(std::string_view text) const
{
    return m_tree == nullptr || m_tree->matchesText(text);
}

} // namespace meridane
