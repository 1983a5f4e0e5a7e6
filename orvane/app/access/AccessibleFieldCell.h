#pragma once

#include "orvane/app/access/AccessibleFieldItem.h"

/// A cell of the field table in its place among the rows and columns.
class AccessibleFieldCell final : public AccessibleFieldItem, public QAccessibleTableCellInterface {
public:
    using AccessibleFieldItem::AccessibleFieldItem;

    void* interface_cast(QAccessible::InterfaceType type) override;

    bool isSelected() const override;
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override;
    int columnIndex() const override;
    int rowIndex() const override;
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override;
};
