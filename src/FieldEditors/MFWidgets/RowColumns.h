#pragma once

#include <QStringList>

class DvMFieldTable;

// The columns of the table of a list editor.
namespace orvane {

/// Makes the only column of a table, without a label, and removes all rows.
void setUpColumn(DvMFieldTable* table);
/// Makes one column for each label.
void setUpColumns(DvMFieldTable* table, const QStringList& labels);
/// The same for colours: the cells of the first column can be clicked, not typed into.
void setUpColorColumns(DvMFieldTable* table, const QStringList& labels);

} // namespace orvane
