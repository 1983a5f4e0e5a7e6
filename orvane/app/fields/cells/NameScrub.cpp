#include "orvane/app/fields/cells/NameScrub.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/fields/cells/CellRegistry.h"
#include "orvane/app/fields/cells/ValueDelegate.h"
#include "orvane/app/fields/cells/detail/CellPainting.h"
#include "orvane/app/fields/cells/detail/ToolTips.h"
#include "orvane/app/fields/editors/CellServices.h"
#include "orvane/app/fields/editors/FieldAt.h"
#include "orvane/app/fields/editors/FieldNumbers.h"
#include "orvane/app/fields/popups/StepFactor.h"
#include "orvane/app/fields/values/FieldWriter.h"

#include "meridane/scene/fields/NxSField.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>

#include <algorithm>
#include <utility>

NameScrub::NameScrub(QAbstractItemView* view, ValueDelegate* delegate, int nameColumn, int valueColumn)
    : QObject(view)
    , m_view(view)
    , m_viewport(view->viewport())
    , m_delegate(delegate)
    , m_nameColumn(nameColumn)
    , m_valueColumn(valueColumn)
{
    view->viewport()->setMouseTracking(true);
    view->viewport()->installEventFilter(this);
}

NameScrub::~NameScrub() = default;

std::optional<NameScrub::Target> NameScrub::targetAt(const QPoint& position) const
{
    const QModelIndex index = m_view->indexAt(position);
    if (!index.isValid() || m_delegate == nullptr)
        return std::nullopt;
    if (index.column() == m_valueColumn)
        return letterAt(index, position);
    if (index.column() != m_nameColumn)
        return std::nullopt;
    FieldSet fields = orvane::fieldsOf(index.siblingAtColumn(m_valueColumn));
    if (fields.isEmpty() || !fields.first().isOfType(NxSField::getClassTypeId()))
        return std::nullopt;
    const ValueCell& cell = orvane::cellOf(fields.first());
    const int component = cell.scrubbedComponent(fields.first(), 0, m_delegate->services());
    if (component != 0 || cell.parts(fields.first(), m_delegate->services()) != 1)
        return std::nullopt;
    return Target{std::move(fields), index, 0};
}

std::optional<NameScrub::Target> NameScrub::letterAt(const QModelIndex& index, const QPoint& position) const
{
    FieldSet fields = orvane::fieldsOf(index);
    if (fields.isEmpty() || !fields.first().isOfType(NxSField::getClassTypeId()))
        return std::nullopt;
    const NxField& field = fields.first();
    const ValueCell& cell = orvane::cellOf(field);
    const CellServices& services = m_delegate->services();
    const QRect area = ValueDelegate::areaOf(*m_view, m_view->visualRect(index));
    const int part = cell.partAt(area, field, position, services);
    const int component = part >= 0 ? cell.scrubbedComponent(field, part, services) : -1;
    if (component < 0)
        return std::nullopt;
    const QString letter = orvane::letterOf(field, component);
    const int width = QFontMetrics(orvane::letterFont(m_view->font())).horizontalAdvance(letter);
    const int left = cell.partArea(area, field, part, services).left();
    if (letter.isEmpty() || position.x() > left + width + orvane::look::unit(m_view->fontMetrics()) / 2)
        return std::nullopt;
    return Target{std::move(fields), index, part};
}

bool NameScrub::eventFilter(QObject* object, QEvent* event)
{
    // Keys go to the widget with the focus, whichever it is.
    if (isDragging() && (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride)
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        if (event->type() == QEvent::KeyPress)
            end(false);
        return true;
    }
    return object == m_viewport && handleViewport(event);
}

bool NameScrub::handleViewport(QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return press(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
        return move(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseButtonRelease:
        return release(*static_cast<QMouseEvent*>(event));
    case QEvent::ContextMenu:
        return m_state == State::Dragging || m_state == State::Ended;
    case QEvent::ToolTip:
        return showToolTip(*static_cast<QHelpEvent*>(event));
    case QEvent::Hide:
        if (isDragging())
            end(true);
        m_state = State::Idle;
        return false;
    default:
        return false;
    }
}

bool NameScrub::press(const QMouseEvent& event)
{
    if (m_state == State::Dragging || m_state == State::Ended) {
        if (event.button() == Qt::RightButton && isDragging())
            end(false);
        return true;
    }
    m_state = State::Idle;
    if (event.button() != Qt::LeftButton || event.type() != QEvent::MouseButtonPress)
        return false;
    if (auto target = targetAt(event.position().toPoint())) {
        m_target = *std::move(target);
        m_state = State::Pressed;
        m_last = event.globalPosition().toPoint();
    }
    return false; // it selects the row as well
}

bool NameScrub::move(const QMouseEvent& event)
{
    const QPoint position = event.globalPosition().toPoint();
    if ((event.buttons() & Qt::LeftButton) == 0) {
        m_state = State::Idle;
        showCursor(event.position().toPoint());
        return false;
    }
    if (m_state == State::Pressed) {
        if ((position - m_last).manhattanLength() < QApplication::startDragDistance())
            return true;
        begin();
    }
    if (!isDragging())
        return m_state == State::Ended;
    FieldWriter& writer = m_delegate->services().writer();
    if (!writer.isLive() || !m_target.index.isValid()) {
        end(true);
        return true;
    }
    m_change += (position.x() - m_last.x()) * m_step * orvane::stepFactor(event.modifiers());
    m_last = position;
    writer.drag(std::clamp(m_change, m_lowest, m_highest));
    return true;
}

void NameScrub::begin()
{
    const NxField& field = m_target.fields.first();
    const ScrubbedNumber number = orvane::cellOf(field).scrubbedNumber(field, m_target.part, m_delegate->services());
    m_step = number.limits.stepFrom(number.value);
    m_lowest = std::min(0.0, number.limits.hardMinimum - number.value);
    m_highest = std::max(0.0, number.limits.hardMaximum - number.value);
    m_change = 0;
    m_state = State::Dragging;
    qApp->installEventFilter(this);
    m_delegate->services().writer().beginDrag(m_target.fields, number.moverOf);
}

void NameScrub::end(bool keep)
{
    qApp->removeEventFilter(this);
    m_view->viewport()->installEventFilter(this);
    m_state = State::Ended;
    m_target = {};
    if (m_delegate == nullptr)
        return;
    FieldWriter& writer = m_delegate->services().writer();
    if (keep)
        writer.end();
    else if (writer.isLive())
        writer.cancel();
}

bool NameScrub::release(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton)
        return m_state == State::Dragging || m_state == State::Ended;
    const State before = std::exchange(m_state, State::Idle);
    if (before == State::Dragging) {
        end(true);
        m_state = State::Idle;
    }
    return before == State::Dragging || before == State::Ended;
}

void NameScrub::showCursor(const QPoint& position)
{
    if (targetAt(position))
        m_view->viewport()->setCursor(Qt::SizeHorCursor);
    else
        m_view->viewport()->unsetCursor();
}

bool NameScrub::showToolTip(const QHelpEvent& event) const
{
    const auto target = targetAt(event.pos());
    if (!target)
        return false;
    const QString hint = orvane::plainToolTip(
        tr("Drag to change the number; with Shift ten times as fast, with Ctrl ten times as slow."));
    const QModelIndex index = target->index;
    QToolTip::showText(
        event.globalPos(), orvane::joinedToolTips(hint, index.data(Qt::ToolTipRole).toString()), m_view->viewport());
    return true;
}
