#pragma once

#include "orvane/app/lists/rows/RowRuns.h"

#include <QStringList>

#include <span>
#include <vector>

class NxMField;

/// Changes of the rows of a list of any class. They notify the observers of the list and record the rows that change,
/// not the list.
namespace orvane {

/// Removes these rows, which exist. Returns false, and changes nothing, if there isn't enough memory, which is
/// reported.
bool removeRows(NxMField& list, const RowRuns& rows);
/// Moves these rows, which exist, so that they lie together, in their order, before the row that is `before` now; the
/// number of rows means the end. Returns false as `removeRows` does.
bool moveRows(NxMField& list, const RowRuns& rows, int before);
/// Whether moving the rows there would change their places.
[[nodiscard]] bool wouldMove(const RowRuns& rows, int before);
/// Inserts copies of these rows, which exist, before the row `before`. Returns false as `removeRows` does.
bool insertCopies(NxMField& list, const RowRuns& rows, int before);

/// Writes a component of these rows, ascending and unique, with a value for each. The list must have components, and
/// they must be able to have the values. Returns false as `removeRows` does.
bool writeColumn(NxMField& list, std::span<const int> rows, int component, std::span<const double> values);
/// The same with the components from `component` on, a vector of values for each.
bool writeColumns(
    NxMField& list, std::span<const int> rows, int component, std::span<const std::vector<double>> columns);
/// Writes rows, ascending and unique, of a list of texts or names, or in the text form for others, with a text for
/// each. Returns false, and changes nothing, if the class refuses one, or as `removeRows` does.
bool writeTexts(NxMField& list, std::span<const int> rows, const QStringList& texts);

} // namespace orvane
