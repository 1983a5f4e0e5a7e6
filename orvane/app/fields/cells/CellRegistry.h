#pragma once

#include "orvane/app/fields/cells/ValueCell.h"

#include "meridane/base/types/NxType.h"

#include <initializer_list>
#include <memory>
#include <utility>
#include <vector>

/// The kinds of cells, and the field classes that they are for.
class CellRegistry {
public:
    [[nodiscard]] static const CellRegistry& instance();

    [[nodiscard]] const ValueCell& cellOf(const NxField& field) const;

private:
    CellRegistry();

    [[nodiscard]] const ValueCell& cellOf(NxType type) const;
    void add(std::unique_ptr<const ValueCell> cell, std::initializer_list<NxType> types);

    std::vector<std::unique_ptr<const ValueCell>> m_cells;
    std::vector<std::pair<NxType, const ValueCell*>> m_entries;
    const ValueCell* m_textCell;
    const ValueCell* m_pathCell;
    mutable std::vector<std::pair<NxType, const ValueCell*>> m_found; // for the classes that were asked for
};

namespace orvane {

/// The kind of a field with a single value: the one for the most derived class that the field has.
[[nodiscard]] inline const ValueCell& cellOf(const NxField& field)
{
    return CellRegistry::instance().cellOf(field);
}

} // namespace orvane
