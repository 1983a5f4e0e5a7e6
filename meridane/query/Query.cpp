#include "meridane/query/Query.h"

#include "meridane/query/NodeIndex.h"
#include "meridane/query/detail/QueryScanner.h"
#include "meridane/query/detail/QueryTree.h"
#include "meridane/query/detail/TextFolding.h"
#include "meridane/scene/nodes/NxNode.h"

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
    QueryScanner scanner(text, subject, QueryScanner::Mode::Whole);
    std::optional<QueryTree> tree = scanner.run();
    if (scanner.error())
        return *scanner.error();
    return tree ? Query(std::make_shared<const QueryTree>(*std::move(tree))) : Query();
}

QueryDraft Query::parseDraft(std::string_view text, Subject subject)
{
    QueryScanner scanner(text, subject, QueryScanner::Mode::Draft);
    std::optional<QueryTree> tree = scanner.run();
    QueryDraft draft;
    draft.error = scanner.error();
    draft.missing = scanner.missing();
    if (tree && !draft.error)
        draft.query = Query(std::make_shared<const QueryTree>(*std::move(tree)));
    return draft;
}

bool Query::isAboutFields() const noexcept
{
    return m_tree != nullptr && m_tree->isAboutFields();
}

bool Query::needsFacts() const noexcept
{
    return m_tree != nullptr && m_tree->needsFacts();
}

bool Query::matches(const NxNode& node, const QueryFacts* facts) const
{
    return m_tree == nullptr
        || m_tree->matches(QueryTree::Node{node, node.getTypeId(), foldText(node.getName().view()), facts});
}

bool Query::matches(const NxField& field, const QueryFacts* facts) const
{
    return m_tree == nullptr || m_tree->matches(QueryTree::Field{field, facts});
}

bool Query::matches(const NodeIndex& index, std::uint32_t entry, const QueryFacts* facts) const
{
    return m_tree == nullptr
        || m_tree->matches(QueryTree::Node{index.node(entry), index.type(entry), index.foldedName(entry), facts});
}

NxField* Query::firstField(const NxNode& node, const QueryFacts* facts) const
{
    if (m_tree == nullptr)
        return nullptr;
    return m_tree->firstField(QueryTree::Node{node, node.getTypeId(), foldText(node.getName().view()), facts});
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
