#pragma once

#include <QAccessible>

class FieldTableView;

/// What screen readers get of the title of a column of the field table.
class AccessibleTitle final : public QAccessibleInterface {
public:
    /// The view lives longer.
    AccessibleTitle(FieldTableView& view, int column);

    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* child) const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString& text) override;
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::ColumnHeader; }
    QAccessible::State state() const override;

private:
    FieldTableView& m_view;
    int m_column;
};
