#include "orvane/app/fields/FieldFilter.h"

#include "orvane/app/fields/FieldRow.h"

#include <algorithm>
#include <utility>

FieldFilter::FieldFilter(meridane::Query query, bool changedOnly)
    : m_query(std::move(query))
    , m_changedOnly(changedOnly)
{
}

// Of many nodes the first ones decide: a key in the filter line may not take long.
bool FieldFilter::shows(const FieldRow& row) const
{
    constexpr std::size_t mostFields = 50;
    if (m_changedOnly && !row.isChanged())
        return false;
    if (row.fields().isEmpty())
        return m_query.matchesText((row.name() + u'\n' + row.text()).toStdString());
    const std::span<NxField* const> fields = row.fields().fields();
    return std::ranges::any_of(fields.first(std::min(fields.size(), mostFields)),
        [this](const NxField* field) { return m_query.matches(*field); });
}
