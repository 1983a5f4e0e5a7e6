#pragma once

#include <QTableView>

#include <vector>

/// A table of whole rows with one line of text each, for lists of any length.
///
/// A row is chosen by a click, by Return, and, unless `choosesByClick` was called, by becoming the only selected one
/// while the table has the focus.
class RowTable : public QTableView {
    Q_OBJECT

public:
    explicit RowTable(QWidget* parent = nullptr);

    /// The width of a column.
    struct Column {
        int characters = 0; ///< at least so many
        double share = 0; ///< of the width that columns without a share leave; none for a column of fixed width
    };
    /// Sets the widths of the columns, of which the last one has what the others leave. They follow the size of the
    /// table until the user changes one.
    void setColumns(std::vector<Column> columns);
    /// Lets a row that becomes the only selected one be no choice of it.
    void choosesByClick() { m_choosesSelected = false; }
    /// Adds actions to the context menu that ask for the text of rows, by the names "area.copy" and "area.copyAll".
    void addCopyActions(const QString& area);

    /// The numbers of the selected rows, ascending.
    [[nodiscard]] std::vector<int> selectedRows() const;

Q_SIGNALS:
    void rowChosen(int row);
    /// The user wants the text of these rows on the clipboard.
    void copyRequested(const std::vector<int>& rows);

protected:
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool viewportEvent(QEvent* event) override;

private:
    [[nodiscard]] bool isOneSelected() const;
    void sizeColumns();

    std::vector<Column> m_columns;
    bool m_choosesSelected = true;
    bool m_isChosen = false; // by the press of a mouse button that isn't released yet
    bool m_areColumnsChosen = false; // by the user
    bool m_sizingColumns = false;
};
