#pragma once

#include "orvane/app/access/FieldPart.h"

#include <QAccessible>

#include <vector>

/// What screen readers get of a cell of the field table or of a part of its value: role, name, value, state, actions.
/// A number can be read and set, a value can be set from its text.
///
/// The whole value of several parts has them as children, and they are its own.
class AccessibleFieldItem : public QAccessibleInterface,
                            public QAccessibleTextInterface,
                            public QAccessibleEditableTextInterface,
                            public QAccessibleValueInterface,
                            public QAccessibleActionInterface {
public:
    /// The view lives longer. A part has the whole as its parent.
    AccessibleFieldItem(FieldTableView& view, const QModelIndex& index, int part = FieldPart::whole,
        QAccessibleInterface* parent = nullptr);
    ~AccessibleFieldItem() override;

    [[nodiscard]] const FieldPart& part() const noexcept { return m_part; }

    bool isValid() const override;
    QObject* object() const override { return nullptr; }
    QWindow* window() const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text kind, const QString& text) override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    void selection(int selectionIndex, int* startOffset, int* endOffset) const override;
    int selectionCount() const override { return 0; }
    void addSelection(int startOffset, int endOffset) override;
    void removeSelection(int selectionIndex) override;
    void setSelection(int selectionIndex, int startOffset, int endOffset) override;
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int position) override;
    QString text(int startOffset, int endOffset) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int startIndex, int endIndex) override;
    QString attributes(int offset, int* startOffset, int* endOffset) const override;

    void deleteText(int startOffset, int endOffset) override;
    void insertText(int offset, const QString& text) override;
    void replaceText(int startOffset, int endOffset, const QString& text) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

    QStringList actionNames() const override;
    void doAction(const QString& actionName) override;
    QStringList keyBindingsForAction(const QString& actionName) const override;

private:
    [[nodiscard]] bool isTextEditable() const;

    FieldPart m_part;
    QAccessibleInterface* m_parent; // null for the table
    mutable std::vector<QAccessible::Id> m_children; // parts that were asked for; 0 for others
};
