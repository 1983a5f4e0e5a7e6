#include "orvane/app/access/AccessibleFieldCell.h"

#include "orvane/app/fields/FieldTableView.h"

void* AccessibleFieldCell::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableCellInterface)
        return static_cast<QAccessibleTableCellInterface*>(this);
    return AccessibleFieldItem::interface_cast(type);
}

bool AccessibleFieldCell::isSelected() const
{
    return state().selected;
}

// The first children of the table are the titles of its columns.
QList<QAccessibleInterface*> AccessibleFieldCell::columnHeaderCells() const
{
    return {table()->child(columnIndex())};
}

QList<QAccessibleInterface*> AccessibleFieldCell::rowHeaderCells() const
{
    if (columnIndex() == 0)
        return {};
    return {table()->tableInterface()->cellAt(rowIndex(), 0)};
}

int AccessibleFieldCell::columnIndex() const
{
    return part().index().column();
}

int AccessibleFieldCell::rowIndex() const
{
    const int place = table()->indexOfChild(this);
    return place < 0 ? -1 : place / table()->tableInterface()->columnCount() - 1;
}

QAccessibleInterface* AccessibleFieldCell::table() const
{
    return QAccessible::queryAccessibleInterface(&part().view());
}
