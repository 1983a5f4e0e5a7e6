#include "FieldEditors/MFWidgets/RowColumns.h"

#include "FieldEditors/MFWidgets/DvMFieldTable.h"

#include <QHeaderView>

namespace {

// Usually a table has no rows yet when its columns are made, and later rows have no items.
void addPlaceholders(DvMFieldTable* table)
{
    for (int row = 0; row < table->rowCount(); ++row) {
        for (int column = 0; column < table->columnCount(); ++column)
            table->setPlaceholder(row, column);
    }
}

void letColumnsBeDragged(const QTableWidget* table)
{
    for (int column = 0; column < table->columnCount(); ++column)
        table->horizontalHeader()->setSectionResizeMode(column, QHeaderView::Interactive);
}

} // namespace

namespace orvane {

void setUpColumn(DvMFieldTable* table)
{
    table->setColumnCount(1);
    letColumnsBeDragged(table);
    table->setNumRows(0);
}

void setUpColumns(DvMFieldTable* table, const QStringList& labels)
{
    table->setColumnCount(static_cast<int>(labels.size()));
    addPlaceholders(table);
    letColumnsBeDragged(table);
    table->setHorizontalHeaderLabels(labels);
}

void setUpColorColumns(DvMFieldTable* table, const QStringList& labels)
{
    setUpColumns(table, labels);
    for (int row = 0; row < table->rowCount(); ++row)
        table->item(row, 0)->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
}

} // namespace orvane
