#pragma once

#include <QAccessibleWidget>
#include <QHash>
#include <QModelIndex>

#include <vector>

class FieldTableView;

/// What screen readers get of the field table: the titles of the columns, and the rows that aren't folded away, cell by
/// cell.
class AccessibleFieldTable final : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit AccessibleFieldTable(FieldTableView* view);
    ~AccessibleFieldTable() override;

    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    int selectedCellCount() const override;
    QList<QAccessibleInterface*> selectedCells() const override;
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override;
    int columnCount() const override;
    int rowCount() const override;
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override;
    bool isColumnSelected(int column) const override;
    bool isRowSelected(int row) const override;
    bool selectRow(int row) override;
    bool selectColumn(int column) override;
    bool unselectRow(int row) override;
    bool unselectColumn(int column) override;
    void modelChange(QAccessibleTableModelChangeEvent* event) override;

    /// The number of a row that isn't folded away, from the top; -1 for others.
    [[nodiscard]] int rowOf(const QModelIndex& index) const;
    /// The title of a column.
    [[nodiscard]] QAccessibleInterface* title(int column) const;

private:
    [[nodiscard]] QModelIndex indexAt(int row, int column) const;
    [[nodiscard]] QAccessibleInterface* cell(const QModelIndex& index) const;
    void forgetLostCells();

    FieldTableView* m_view;
    mutable std::vector<QAccessible::Id> m_titles;
    mutable QHash<QPersistentModelIndex, QAccessible::Id> m_cells; // those that were asked for
};
