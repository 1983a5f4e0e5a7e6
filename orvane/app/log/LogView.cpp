#include "orvane/app/log/LogView.h"

#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/log/LogDelegate.h"
#include "orvane/app/look/Look.h"

#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>
#include <utility>

LogView::LogView(LogModel& model, LogDelegate& delegate, LogLinks& links, QWidget* parent)
    : RowTable(parent)
    , m_model(model)
    , m_delegate(delegate)
    , m_links(links)
{
    setObjectName(QStringLiteral("logTable"));
    orvane::followLanguage(this, [this] { setAccessibleName(tr("Log")); });
    setModel(&model);
    setItemDelegateForColumn(LogModel::TextColumn, &delegate);
    setSelectionMode(ExtendedSelection);
    setTextElideMode(Qt::ElideRight);
    setMouseTracking(true);
    choosesByClick();
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this,
        [this](int value) { m_followsEnd = value == verticalScrollBar()->maximum(); });
    connect(&links, &LogLinks::changed, viewport(), qOverload<>(&QWidget::update));
    followRows();
}

void LogView::followRows()
{
    connect(&m_model, &QAbstractItemModel::rowsInserted, this, [this] {
        if (m_followsEnd)
            showEnd();
    });
    // Rows that are read stay in their place while older ones are dropped.
    connect(&m_model, &QAbstractItemModel::rowsRemoved, this, [this](const QModelIndex&, int first, int last) {
        if (first == 0 && !m_followsEnd)
            verticalScrollBar()->setValue(verticalScrollBar()->value() - (last - first + 1));
    });
    connect(&m_model, &QAbstractItemModel::modelReset, this, [this] {
        if (m_followsEnd)
            showEnd();
    });
}

void LogView::showEnd()
{
    scrollToBottom();
    m_followsEnd = true;
}

LogView::Place LogView::place() const
{
    const int top = rowAt(0);
    return {m_model.lineAt(currentIndex().row()), m_followsEnd ? std::nullopt : m_model.lineAt(top)};
}

void LogView::returnTo(const Place& place)
{
    if (place.current) {
        const int row = m_model.rowNear(*place.current);
        if (m_model.lineAt(row) == place.current)
            setCurrentIndex(m_model.index(row, LogModel::TextColumn));
    }
    if (place.top)
        scrollTo(m_model.index(m_model.rowNear(*place.top), 0), PositionAtTop);
    else
        showEnd();
}

void LogView::goTo(int row)
{
    const QModelIndex index = m_model.index(row, LogModel::TextColumn);
    const bool isSeen = viewport()->rect().contains(visualRect(index).center());
    setCurrentIndex(index);
    if (!isSeen)
        scrollTo(index, PositionAtCenter);
}

std::optional<LogLink> LogView::linkAt(const QPoint& place) const
{
    const QModelIndex index = indexAt(place);
    if (!index.isValid() || index.column() != LogModel::TextColumn)
        return std::nullopt;
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    option.rect = visualRect(index);
    return m_delegate.linkAt(option, index, place);
}

void LogView::toggle(int row)
{
    if (m_model.canUnfold(row))
        m_model.unfold(row);
    else if (m_model.canFold(row))
        setCurrentIndex(m_model.index(m_model.fold(row), LogModel::TextColumn));
}

void LogView::keyPressEvent(QKeyEvent* event)
{
    const int row = currentIndex().row();
    const bool isPlain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isPlain && isReturn) {
        const LogLinks::Links& links = m_links.of(m_model.shownText(row));
        if (!links.isEmpty()) {
            const LogLink link = links.front();
            Q_EMIT linkChosen(link);
        }
    } else if (isPlain && event->key() == Qt::Key_Right && m_model.canUnfold(row)) {
        m_model.unfold(row);
    } else if (isPlain && event->key() == Qt::Key_Left && m_model.canFold(row)) {
        toggle(row);
    } else {
        RowTable::keyPressEvent(event);
    }
}

void LogView::mouseMoveEvent(QMouseEvent* event)
{
    const QModelIndex index = indexAt(event->position().toPoint());
    const bool isCount
        = index.column() == LogModel::CountColumn && (m_model.canUnfold(index.row()) || m_model.canFold(index.row()));
    const bool isLink = event->buttons() == Qt::NoButton && linkAt(event->position().toPoint());
    viewport()->setCursor(isLink || isCount ? Qt::PointingHandCursor : Qt::ArrowCursor);
    if (event->buttons() != Qt::NoButton)
        m_isPressed = m_isPressed && indexAt(event->position().toPoint()) == currentIndex();
    RowTable::mouseMoveEvent(event);
}

void LogView::mousePressEvent(QMouseEvent* event)
{
    m_isPressed = event->button() == Qt::LeftButton && event->modifiers() == Qt::NoModifier;
    RowTable::mousePressEvent(event);
}

void LogView::mouseReleaseEvent(QMouseEvent* event)
{
    RowTable::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton || !std::exchange(m_isPressed, false))
        return;
    const QPoint place = event->position().toPoint();
    const QModelIndex index = indexAt(place);
    if (index.column() == LogModel::CountColumn)
        toggle(index.row());
    else if (const auto link = linkAt(place))
        Q_EMIT linkChosen(*link);
}

void LogView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        verticalHeader()->setDefaultSectionSize(orvane::look::rowHeight(fontMetrics()));
    RowTable::changeEvent(event);
}
