#include "meridane/query/Query.h"

#include "meridane/query/detail/QueryScanner.h"
#include "meridane/query/detail/QueryTree.h"

namespace meridane {

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

bool Query::matchesText(std::string_view text) const
{
    return m_tree == nullptr || m_tree->matchesText(text);
}

} // namespace meridane
