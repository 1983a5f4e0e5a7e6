#pragma once

#include "meridane/query/Query.h"

class FieldRow;

/// Which rows of the field table are shown.
class FieldFilter {
public:
    /// Rows that match the query; and only rows with a value that isn't the default if `changedOnly`.
    FieldFilter(meridane::Query query, bool changedOnly);

    [[nodiscard]] bool shows(const FieldRow& row) const;

private:
    meridane::Query m_query;
    bool m_changedOnly;
};
