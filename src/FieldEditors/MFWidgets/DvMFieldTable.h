#pragma once

#include <QList>
#include <QPersistentModelIndex>
#include <QTableWidget>

class DvMFieldTableItemDelegate;
class DvMFieldWidget;

/// The table of a multi-value editor, with a row for each value. It stores no value: it has as many rows as the field
/// has values, and asks its owner for the text of a cell whenever one is painted or opened. Items are placeholders
/// without text.
class DvMFieldTable : public QTableWidget {
    Q_OBJECT

public:
    /// Without a name the object is named after this class. `owner` isn't owned and outlives the table.
    DvMFieldTable(DvMFieldWidget* owner, QWidget* parent, const char* name);
    ~DvMFieldTable() override;

    /// Selects validator and editor of the cells: `kind` is the number of an `orvane::CellKind`.
    void setValueKind(int kind);
    /// The range that the slider of a real number starts with.
    void setRealRange(double min, double max);
    /// Whether that range is a hard limit.
    void setRangeBounded(bool bounded);
    /// Puts a new placeholder into a cell; does nothing where there is no such cell.
    void setPlaceholder(int row, int column);
    using QTableWidget::update;
    /// Schedules a repaint of all visible cells, and of nothing around them, which doesn't depend on the field.
    void update();

    /// Finds nothing, since the items don't hold the texts that the user sees.
    void keyboardSearch(const QString& search) override;

    // The order of the slots is that of the meta object.
public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers)
    /// Sets the number of rows and the bounds of the access box. A negative number changes nothing, nor does one that
    /// doesn't fit in memory, which is reported as an `NxMemoryError`.
    void setNumRows(int row);
    void swapUpRow();
    void swapDownRow();
    /// Removes the current row, or the first selected range while Shift is held.
    virtual void deleteRow();
    /// Adds a row behind the current one, which stays the current one.
    virtual void addRow();
    /// Scrolls to a row that has a placeholder and makes it the current one.
    void showTableRow(int row);
    virtual void swapRows(int row1, int row2);
    void editorDestroyed(QObject* editor) override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    DvMFieldWidget* m_owner;
    DvMFieldTableItemDelegate* m_delegate;
    bool m_multiRowMode = false; // Shift is held

private:
    void commitOpenEditor();
    void noteItem(const QModelIndex& index);
    void clearPlaceholders();
    void deleteSelectedRows();
    [[nodiscard]] bool pushDeletion(int row, int count);
    [[nodiscard]] bool hasRoomFor(int rows) const;
    void shareWidth();

    QList<QPersistentModelIndex> m_itemPlaces; // the cells that were given an item since the last clearing
    bool m_widthIsShared = true; // until the user drags a column
};
