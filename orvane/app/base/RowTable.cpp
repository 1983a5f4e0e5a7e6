#include "orvane/app/base/RowTable.h"

#include "orvane/app/base/ApplicableMenu.h"
#include "orvane/app/language/FollowLanguage.h"

#include <QAction>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>

#include <algorithm>
#include <numeric>
#include <utility>

RowTable::RowTable(QWidget* parent)
    : QTableView(parent)
{
    constexpr int space = 8; // above and below the text
    constexpr int leastCharacters = 5; // in a column
    setSelectionBehavior(SelectRows);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setFrameShape(QFrame::NoFrame);
    setTextElideMode(Qt::ElideMiddle);
    setHorizontalScrollMode(ScrollPerPixel);
    orvane::giveApplicableMenu(this);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + space);
    horizontalHeader()->setHighlightSections(false);
    // By itself it would be the width of the widest letter of any script.
    horizontalHeader()->setMinimumSectionSize(leastCharacters * fontMetrics().averageCharWidth());
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setStretchLastSection(true);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column) {
        const bool isLast = column + 1 == horizontalHeader()->count();
        m_areColumnsChosen = m_areColumnsChosen || (!m_sizingColumns && !isLast);
    });
    connect(this, &QTableView::clicked, this, [this](const QModelIndex& index) {
        const bool isChosen = std::exchange(m_isChosen, false);
        if (!isChosen && isOneSelected())
            Q_EMIT rowChosen(index.row());
    });
}

void RowTable::setColumns(std::vector<Column> columns)
{
    m_columns = std::move(columns);
    sizeColumns();
}

void RowTable::addCopyActions(const QString& area)
{
    auto* const copy = new QAction(this);
    copy->setObjectName(area + QStringLiteral(".copy"));
    orvane::followLanguage(copy, [copy] {
        copy->setText(tr("&Copy"));
        copy->setStatusTip(tr("Copies the selected rows as text"));
    });
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    connect(copy, &QAction::triggered, this, [this] { Q_EMIT copyRequested(selectedRows()); });
    auto* const copyAll = new QAction(this);
    copyAll->setObjectName(area + QStringLiteral(".copyAll"));
    orvane::followLanguage(copyAll, [copyAll] {
        copyAll->setText(tr("Copy &All"));
        copyAll->setStatusTip(tr("Copies all rows that are shown as text"));
    });
    connect(copyAll, &QAction::triggered, this, [this] {
        std::vector<int> rows(static_cast<std::size_t>(model()->rowCount()));
        std::iota(rows.begin(), rows.end(), 0);
        Q_EMIT copyRequested(rows);
    });
    addActions({copy, copyAll});
}

std::vector<int> RowTable::selectedRows() const
{
    std::vector<int> rows;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.push_back(row);
    }
    std::ranges::sort(rows);
    return rows;
}

bool RowTable::isOneSelected() const
{
    const QItemSelection selection = selectionModel()->selection();
    return selection.size() == 1 && selection.front().height() == 1;
}

// Not the current index: a view that gets the focus makes its first row current, and that must select nothing.
void RowTable::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTableView::selectionChanged(selected, deselected);
    if (!m_choosesSelected)
        return;
    // A row that is selected because the one before it went away isn't chosen.
    m_isChosen = hasFocus() && isOneSelected();
    if (m_isChosen)
        Q_EMIT rowChosen(selectionModel()->selection().front().top());
}

void RowTable::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && currentIndex().isValid())
        Q_EMIT rowChosen(currentIndex().row());
    else
        QTableView::keyPressEvent(event);
}

bool RowTable::viewportEvent(QEvent* event)
{
    const bool result = QTableView::viewportEvent(event);
    // A scroll bar takes of the width, too.
    if (event->type() == QEvent::Resize && !m_areColumnsChosen)
        sizeColumns();
    return result;
}

void RowTable::sizeColumns()
{
    const int count = horizontalHeader()->count();
    if (m_columns.empty() || count != static_cast<int>(m_columns.size()))
        return;
    const QScopedValueRollback sizing(m_sizingColumns, true);
    const int character = fontMetrics().averageCharWidth();
    int left = viewport()->width();
    int shared = left;
    for (const Column& column : m_columns)
        shared -= column.share > 0 ? 0 : column.characters * character;
    for (int number = 0; number + 1 < count; ++number) {
        const Column& column = m_columns[static_cast<std::size_t>(number)];
        const int width = std::max(static_cast<int>(column.share * shared), column.characters * character);
        setColumnWidth(number, width);
        left -= width;
    }
    // The header widens it, but doesn't make it narrower.
    setColumnWidth(count - 1, left);
}
