#include "orvane/app/lists/ListView.h"

#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/lists/rows/ListModel.h"
#include "orvane/app/look/Look.h"

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace {

constexpr int scrollInterval = 50; // milliseconds, while rows are dragged beyond the edge

/// More separate ranges than this aren't selected: each costs time whenever a cell is painted.
constexpr std::size_t mostRanges = 2000;

} // namespace

ListView::ListView(ListModel& model, QWidget* parent)
    : QTableView(parent)
    , m_model(model)
{
    setObjectName(QStringLiteral("listTable"));
    orvane::followLanguage(this, [this] { setAccessibleName(tr("Rows of the list")); });
    setModel(&model);
    setFrameShape(QFrame::NoFrame);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setTabKeyNavigation(true);
    setHorizontalScrollMode(ScrollPerPixel);
    setCornerButtonEnabled(true);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(orvane::look::rowHeight(fontMetrics()));
    verticalHeader()->setHighlightSections(false);
    verticalHeader()->viewport()->installEventFilter(this);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionsClickable(true);
    constexpr int columnCharacters = 14;
    horizontalHeader()->setDefaultSectionSize(columnCharacters * fontMetrics().averageCharWidth());
    horizontalHeader()->setMinimumSectionSize(4 * fontMetrics().averageCharWidth());
}

ListView::~ListView() = default;

RowRuns ListView::selectedPlaces() const
{
    std::vector<RowRun> ranges;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        ranges.push_back({range.top(), range.height()});
    if (ranges.empty() && currentIndex().isValid())
        ranges.push_back({currentIndex().row(), 1});
    std::ranges::sort(ranges, {}, &RowRun::first);
    RowRuns runs;
    for (const RowRun range : ranges) {
        const int first = runs.empty() ? range.first : std::max(range.first, runs.back().end());
        orvane::appendRun(runs, {first, range.end() - first});
    }
    return runs;
}

RowRuns ListView::selectedListRows() const
{
    return listRowsAt(selectedPlaces());
}

RowRuns ListView::allListRows() const
{
    return m_model.rowCount() > 0 ? listRowsAt({{0, m_model.rowCount()}}) : RowRuns();
}

RowRuns ListView::listRowsAt(const RowRuns& places) const
{
    if (m_model.showsAll())
        return places;
    std::vector<int> rows = orvane::rowsOf(places);
    std::ranges::transform(rows, rows.begin(), [this](int place) { return m_model.map().listRow(place); });
    return orvane::rowRuns(std::move(rows));
}

ListView::Columns ListView::selectedColumns() const
{
    const QItemSelection selection = selectionModel()->selection();
    if (selection.isEmpty())
        return {std::max(0, currentIndex().column()), std::max(0, currentIndex().column())};
    Columns columns{selection.front().left(), selection.front().right()};
    for (const QItemSelectionRange& range : selection)
        columns = {std::min(columns.first, range.left()), std::max(columns.last, range.right())};
    return columns;
}

int ListView::selectedCount() const
{
    return selectionModel()->hasSelection() ? orvane::rowCount(selectedPlaces()) : 0;
}

void ListView::selectPlaces(const RowRuns& places, Columns columns)
{
    if (places.empty()) {
        clearSelection();
        return;
    }
    QItemSelection selection;
    const int last = std::min(columns.last, m_model.columnCount() - 1);
    for (std::size_t i = 0; i < std::min(places.size(), mostRanges); ++i) {
        const RowRun run = places[i];
        selection.append(
            QItemSelectionRange(m_model.index(run.first, columns.first), m_model.index(run.end() - 1, last)));
    }
    const QModelIndex current = m_model.index(places.front().first, std::max(columns.first, currentIndex().column()));
    selectionModel()->setCurrentIndex(current, QItemSelectionModel::NoUpdate);
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    scrollTo(current);
}

void ListView::selectListRows(const RowRuns& rows, Columns columns)
{
    if (m_model.showsAll()) {
        selectPlaces(rows, columns);
        return;
    }
    std::vector<int> places = orvane::rowsOf(rows);
    std::ranges::transform(places, places.begin(), [this](int row) { return m_model.map().placeOf(row); });
    std::erase(places, -1);
    selectPlaces(orvane::rowRuns(std::move(places)), columns);
}

int ListView::heightFor(int rows) const
{
    return horizontalHeader()->sizeHint().height() + rows * verticalHeader()->defaultSectionSize()
        + horizontalScrollBar()->sizeHint().height() + 2 * frameWidth();
}

void ListView::moveCurrent(int columns, int rows)
{
    const int columnCount = m_model.columnCount();
    const int rowCount = m_model.rowCount();
    if (rowCount == 0)
        return;
    int row = std::max(0, currentIndex().row()) + rows;
    int column = std::max(0, currentIndex().column()) + columns;
    if (column >= columnCount || column < 0) {
        row += column < 0 ? -1 : 1;
        column = column < 0 ? columnCount - 1 : 0;
    }
    if (row >= 0 && row < rowCount)
        setCurrentIndex(m_model.index(row, column));
}

void ListView::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (m_dropPlace >= 0) {
        if (key == Qt::Key_Escape)
            endDrag(false);
        event->accept();
        return;
    }
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && state() != EditingState) {
        moveCurrent(0, event->modifiers().testFlag(Qt::ShiftModifier) ? -1 : 1);
        event->accept();
        return;
    }
    QTableView::keyPressEvent(event);
}

bool ListView::isWholeRowSelected(int place) const
{
    return place >= 0
        && std::ranges::any_of(selectionModel()->selection(), [this, place](const QItemSelectionRange& range) {
               return range.top() <= place && range.bottom() >= place && range.width() == m_model.columnCount();
           });
}

// The header itself would begin another selection.
bool ListView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != verticalHeader()->viewport())
        return QTableView::eventFilter(watched, event);
    if (event->type() == QEvent::MouseButtonPress) {
        const auto& press = static_cast<const QMouseEvent&>(*event);
        const int y = press.position().toPoint().y();
        if (press.button() == Qt::LeftButton && press.modifiers() == Qt::NoModifier
            && isWholeRowSelected(verticalHeader()->logicalIndexAt(y))) {
            m_pressedY = y;
            setFocus(Qt::MouseFocusReason);
            return true;
        }
    } else if (event->type() == QEvent::MouseMove && m_pressedY >= 0) {
        const int y = static_cast<const QMouseEvent&>(*event).position().toPoint().y();
        if (m_dropPlace >= 0 || std::abs(y - m_pressedY) >= QApplication::startDragDistance())
            dragTo(y);
        return true;
    } else if (event->type() == QEvent::MouseButtonRelease && m_pressedY >= 0) {
        if (m_dropPlace < 0)
            selectRow(verticalHeader()->logicalIndexAt(m_pressedY));
        endDrag(true);
        return true;
    }
    return QTableView::eventFilter(watched, event);
}

int ListView::dropPlaceAt(int y) const
{
    const int place = rowAt(y);
    if (place < 0)
        return y < 0 ? std::max(0, rowAt(0)) : m_model.rowCount();
    const bool isBelow = y > rowViewportPosition(place) + rowHeight(place) / 2;
    return isBelow ? place + 1 : place;
}

void ListView::dragTo(int y)
{
    m_dragY = y;
    m_dropPlace = dropPlaceAt(y);
    if (m_scrollTimer == 0)
        m_scrollTimer = startTimer(scrollInterval);
    viewport()->update();
}

void ListView::endDrag(bool drops)
{
    const int place = std::exchange(m_dropPlace, -1);
    m_pressedY = -1;
    if (m_scrollTimer != 0)
        killTimer(std::exchange(m_scrollTimer, 0));
    if (place < 0)
        return;
    viewport()->update();
    if (drops)
        Q_EMIT rowsDropped(place);
}

void ListView::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_scrollTimer) {
        QTableView::timerEvent(event);
        return;
    }
    if (m_dragY < 0)
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
    else if (m_dragY >= viewport()->height())
        verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    dragTo(m_dragY);
}

void ListView::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    if (m_dropPlace < 0)
        return;
    const bool isAtEnd = m_dropPlace >= m_model.rowCount();
    const int last = m_model.rowCount() - 1;
    const int y = isAtEnd ? rowViewportPosition(last) + rowHeight(last) - 1 : rowViewportPosition(m_dropPlace);
    QPainter painter(viewport());
    painter.fillRect(QRect(0, y - 1, viewport()->width(), 2), palette().color(QPalette::Highlight));
}
