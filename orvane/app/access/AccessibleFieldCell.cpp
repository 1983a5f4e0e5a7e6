#include "orvane/app/access/AccessibleFieldCell.h"

#include "orvane/app/access/AccessibleFieldTable.h"
#include "orvane/app/fields/FieldTableView.h"

void* AccessibleFieldCell::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TableCellInterface)
        return static_cast<QAccessibleTableCellInterface*>(this);
    return AccessibleFieldItem::interface_cast(type);
}

AccessibleFieldTable* AccessibleFieldCell::ownTable() const
{
    return dynamic_cast<AccessibleFieldTable*>(QAccessible::queryAccessibleInterface(&part().view()));
}

bool AccessibleFieldCell::isSelected() const
{
    return state().selected;
}

QList<QAccessibleInterface*> AccessibleFieldCell::columnHeaderCells() const
{
    const AccessibleFieldTable* const own = ownTable();
    return own != nullptr ? QList{own->title(columnIndex())} : QList<QAccessibleInterface*>();
}

QList<QAccessibleInterface*> AccessibleFieldCell::rowHeaderCells() const
{
    const AccessibleFieldTable* const own = ownTable();
    if (own == nullptr || columnIndex() == 0)
        return {};
    return {own->cellAt(rowIndex(), 0)};
}

int AccessibleFieldCell::columnIndex() const
{
    return part().index().column();
}

int AccessibleFieldCell::rowIndex() const
{
    const AccessibleFieldTable* const own = ownTable();
    return own != nullptr ? own->rowOf(part().index()) : -1;
}

QAccessibleInterface* AccessibleFieldCell::table() const
{
    return QAccessible::queryAccessibleInterface(&part().view());
}
