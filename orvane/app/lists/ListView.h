#pragma once

#include "orvane/app/lists/rows/RowRuns.h"

#include <QTableView>

#include <limits>

class ListModel;

/// The table of a list: cells and ranges of cells are selected as in a spreadsheet, whole rows by their numbers. Rows
/// that are selected as a whole can be dragged by their numbers.
class ListView : public QTableView {
    Q_OBJECT

public:
    explicit ListView(ListModel& model, QWidget* parent = nullptr);
    ~ListView() override;

    /// A range of columns.
    struct Columns {
        int first = 0;
        int last = 0;
    };
    static constexpr Columns allColumns{0, std::numeric_limits<int>::max()};

    /// The places of the rows that have selected cells; of the current one if there are none.
    [[nodiscard]] RowRuns selectedPlaces() const;
    /// The same as rows of the list.
    [[nodiscard]] RowRuns selectedListRows() const;
    /// All rows that are shown, as rows of the list.
    [[nodiscard]] RowRuns allListRows() const;
    /// The first and the last column with selected cells; the current one if there are none.
    [[nodiscard]] Columns selectedColumns() const;
    /// How many rows are selected; the current row alone isn't.
    [[nodiscard]] int selectedCount() const;
    /// Selects rows by their places, and makes the first one current and visible.
    void selectPlaces(const RowRuns& places, Columns columns = allColumns);
    /// The same with rows of the list, of which those that aren't shown are left out.
    void selectListRows(const RowRuns& rows, Columns columns = allColumns);
    /// The height of the table with its title line that shows this number of rows.
    [[nodiscard]] int heightFor(int rows) const;

public Q_SLOTS:
    /// Makes the cell that many columns and rows further current; at the end of a line, the next line.
    void moveCurrent(int columns, int rows);

Q_SIGNALS:
    /// The user dragged the selected rows to before that place.
    void rowsDropped(int place);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    [[nodiscard]] RowRuns listRowsAt(const RowRuns& places) const;
    [[nodiscard]] bool isWholeRowSelected(int place) const;
    [[nodiscard]] int dropPlaceAt(int y) const;
    void dragTo(int y);
    void endDrag(bool drops);

    ListModel& m_model;
    int m_pressedY = -1; // on the number of a selected row
    int m_dropPlace = -1; // while rows are dragged
    int m_dragY = 0;
    int m_scrollTimer = 0;
};
