#include "orvane/app/fields/cells/ValueDelegate.h"

#include "orvane/app/base/DraggedFile.h"
#include "orvane/app/base/PlainText.h"
#include "orvane/app/fields/cells/CellRegistry.h"
#include "orvane/app/fields/cells/detail/ToolTips.h"
#include "orvane/app/fields/editors/CellEditor.h"
#include "orvane/app/fields/editors/CellServices.h"
#include "orvane/app/fields/editors/FieldAt.h"
#include "orvane/app/fields/editors/PendingText.h"
#include "orvane/app/fields/values/FieldWriter.h"
#include "orvane/app/look/Look.h"

#include "meridane/scene/fields/NxSField.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QDropEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStatusTipEvent>
#include <QToolTip>
#include <QTreeView>

ValueDelegate::ValueDelegate(QAbstractItemView* view, FieldWriter& writer, AppSettings* settings)
    : FoundTextDelegate(meridane::SearchedText::Value, view)
    , m_view(view)
    , m_viewport(view->viewport())
    , m_services(std::make_unique<CellServices>(writer, settings))
{
    connect(m_services.get(), &CellServices::changed, view->viewport(), qOverload<>(&QWidget::update));
    connect(&writer, &FieldWriter::pendingChanged, this, &ValueDelegate::showPending);
    view->viewport()->setAcceptDrops(true);
    view->viewport()->installEventFilter(this);
}

ValueDelegate::~ValueDelegate() = default;

const FieldSet* ValueDelegate::shownFields(const QModelIndex& index)
{
    const auto* const fields = index.data(FieldRoles::FieldSetRole).value<const FieldSet*>();
    const bool isShown
        = fields != nullptr && !fields->isEmpty() && fields->first().isOfType(NxSField::getClassTypeId());
    return isShown ? fields : nullptr;
}

bool ValueDelegate::isSearched(const QModelIndex& index) const
{
    return index.parent().isValid();
}

void ValueDelegate::showPending()
{
    if (m_view == nullptr)
        return;
    m_view->viewport()->update();
    // No tool tip is shown during a drag; the window says it in its status bar.
    const bool isPending = m_services->writer().isPending();
    QStatusTipEvent tip(isPending ? orvane::pendingText() : QString());
    QCoreApplication::sendEvent(m_view, &tip);
}

QRect ValueDelegate::areaOf(const QWidget& view, const QRect& cell)
{
    const int unit = orvane::look::unit(view.fontMetrics());
    return cell.adjusted(unit, 1, -unit, -1);
}

void ValueDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const FieldSet* const fields = shownFields(index);
    if (fields == nullptr || m_view == nullptr)
        return FoundTextDelegate::paint(painter, option, index);
    QStyleOptionViewItem panel = option;
    panel.index = index;
    m_view->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &panel, painter, m_view);

    const CellPaint cell = cellPaint(option, index);
    painter->save();
    painter->setClipRect(option.rect, Qt::IntersectClip);
    orvane::cellOf(fields->first()).paint(*painter, cell, m_services->writer().pending(*fields));
    painter->restore();
}

CellPaint ValueDelegate::cellPaint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const FieldWriter& writer = m_services->writer();
    const FieldSet& fields = *shownFields(index);
    CellPaint cell;
    cell.area = areaOf(*m_view, option.rect);
    const ItemLook look = lookOf(option, index);
    cell.font = look.font;
    cell.palette = option.palette;
    cell.background = look.background;
    cell.text = look.text;
    cell.isMixed = fields.count() > 1 && index.data(FieldRoles::MixedRole).toBool();
    if (writer.isPending(fields)) {
        cell.font.setItalic(true);
        cell.text = orvane::look::quietColor(cell.text, cell.background);
        cell.isMixed = writer.pending(fields).isMixed();
    }
    cell.isEnabled = look.group != QPalette::Disabled;
    cell.view = m_view;
    cell.query = query().isEmpty() ? nullptr : &query();
    cell.services = m_services.get();
    return cell;
}

QSize ValueDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (shownFields(index) == nullptr)
        return FoundTextDelegate::sizeHint(option, index);
    constexpr int characters = 24;
    return {characters * option.fontMetrics.averageCharWidth(), orvane::look::rowHeight(option.fontMetrics)};
}

QWidget* ValueDelegate::createEditor(
    QWidget* parent, const QStyleOptionViewItem& /*option*/, const QModelIndex& index) const
{
    const Opening opening = std::exchange(m_opening, {});
    const FieldSet* const fields = shownFields(index);
    if (fields == nullptr)
        return nullptr;
    const CellEdit what{index, opening.part, opening.reason, m_services.get()};
    CellEditor* const editor = orvane::cellOf(fields->first()).createEditor(what, parent);
    if (editor != nullptr) {
        auto* const self = const_cast<ValueDelegate*>(this);
        connect(editor, &CellEditor::finished, self, [self, editor, persistent = what.index](CellEditor::Next next) {
            const int step = next == CellEditor::Next::Forward ? 1 : next == CellEditor::Next::Backward ? -1 : 0;
            self->close(editor, persistent, step);
        });
    }
    return editor;
}

void ValueDelegate::close(CellEditor* editor, const QPersistentModelIndex& index, int next)
{
    const QWidget* const focus = QApplication::focusWidget();
    const bool hadFocus = focus == nullptr || focus == editor || editor->isAncestorOf(focus);
    const int part = editor->part();
    Q_EMIT closeEditor(editor, NoHint);
    if (m_view == nullptr || !hadFocus)
        return;
    m_view->setFocus();
    if (next != 0 && index.isValid())
        editBeside(index, part, next);
}

void ValueDelegate::editBeside(const QModelIndex& index, int part, int step)
{
    const FieldSet* const fields = shownFields(index);
    if (fields != nullptr) {
        const int count = orvane::cellOf(fields->first()).parts(fields->first(), *m_services);
        if (part + step >= 0 && part + step < count) {
            edit(index, part + step, CellEdit::Reason::Tab);
            return;
        }
    }
    const QPersistentModelIndex next = nextEditable(index, step);
    if (!next.isValid())
        return;
    m_view->setCurrentIndex(next);
    // The selection may have changed what is shown.
    const FieldSet* const nextFields = shownFields(next);
    if (nextFields == nullptr)
        return;
    const int count = orvane::cellOf(nextFields->first()).parts(nextFields->first(), *m_services);
    edit(next, step > 0 ? 0 : count - 1, CellEdit::Reason::Tab);
}

QModelIndex ValueDelegate::nextEditable(const QModelIndex& index, int step) const
{
    const auto* const tree = qobject_cast<const QTreeView*>(m_view.data());
    QModelIndex next = index;
    do {
        if (tree != nullptr)
            next = step > 0 ? tree->indexBelow(next) : tree->indexAbove(next);
        else
            next = next.siblingAtRow(next.row() + step);
        next = next.siblingAtColumn(index.column());
    } while (next.isValid() && ((next.flags() & Qt::ItemIsEditable) == 0 || shownFields(next) == nullptr));
    return next;
}

bool ValueDelegate::edit(const QModelIndex& index, int part, CellEdit::Reason reason)
{
    if (m_view == nullptr || (index.flags() & Qt::ItemIsEditable) == 0 || shownFields(index) == nullptr)
        return false;
    m_view->scrollTo(index);
    m_opening = {part, reason};
    m_view->edit(index);
    m_opening = {};
    return true;
}

void ValueDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    if (auto* const cell = qobject_cast<CellEditor*>(editor); cell != nullptr)
        cell->refresh();
    else
        FoundTextDelegate::setEditorData(editor, index);
}

void ValueDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    if (qobject_cast<CellEditor*>(editor) == nullptr) // which has written by itself
        FoundTextDelegate::setModelData(editor, model, index);
}

void ValueDelegate::updateEditorGeometry(
    QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto* const cell = qobject_cast<CellEditor*>(editor);
    const FieldSet* const fields = shownFields(index);
    if (cell == nullptr || fields == nullptr || m_view == nullptr)
        return FoundTextDelegate::updateEditorGeometry(editor, option, index);
    const NxField& field = fields->first();
    const QRect area = areaOf(*m_view, option.rect);
    const QRect part = orvane::cellOf(field).editorArea(area, field, cell->part(), *m_services, option.font);
    // A number needs more room than a narrow component has, and a line is as high as the row.
    const int least = std::min(option.rect.width(), cell->minimumWidth());
    const int left = std::min(part.left(), option.rect.right() + 1 - least);
    editor->setGeometry(left, option.rect.top(), std::max(part.width(), least), option.rect.height());
}

bool ValueDelegate::editorEvent(
    QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (shownFields(index) == nullptr || m_view == nullptr)
        return FoundTextDelegate::editorEvent(event, model, option, index);
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto* const mouse = static_cast<QMouseEvent*>(event);
        m_press.reset();
        if (mouse->button() == Qt::LeftButton && mouse->modifiers() == Qt::NoModifier)
            m_press = Press{index, mouse->position().toPoint()};
        return false;
    }
    case QEvent::MouseButtonRelease: {
        const std::optional<Press> press = std::exchange(m_press, std::nullopt);
        const QPoint position = static_cast<QMouseEvent*>(event)->position().toPoint();
        const bool isClick = press && press->index == index
            && (position - press->position).manhattanLength() < QApplication::startDragDistance();
        if (isClick)
            handleClick(index, areaOf(*m_view, option.rect), position);
        return false;
    }
    case QEvent::KeyPress:
        if (static_cast<QKeyEvent*>(event)->key() != Qt::Key_Space)
            return false;
        return edit(index, 0, CellEdit::Reason::Key);
    default:
        return false;
    }
}

void ValueDelegate::handleClick(const QModelIndex& index, const QRect& area, const QPoint& position)
{
    if ((index.flags() & Qt::ItemIsEditable) == 0)
        return;
    const FieldSet* const fields = shownFields(index);
    const NxField& field = fields->first();
    const ValueCell& cell = orvane::cellOf(field);
    const int part = cell.partAt(area, field, position, *m_services);
    if (part < 0 || cell.click({index, part, CellEdit::Reason::Click, m_services.get()}, area, position))
        return;
    // The view is still handling the release, and would take the editor's state back.
    QMetaObject::invokeMethod(
        this,
        [this, persistent = QPersistentModelIndex(index), part] {
            if (persistent.isValid())
                edit(persistent, part, CellEdit::Reason::Click);
        },
        Qt::QueuedConnection);
}

bool ValueDelegate::helpEvent(
    QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const FieldSet* const fields = shownFields(index);
    if (event->type() != QEvent::ToolTip || fields == nullptr)
        return FoundTextDelegate::helpEvent(event, view, option, index);
    const ValueCell& cell = orvane::cellOf(fields->first());
    const bool isPending = m_services->writer().isPending(*fields);
    const QString own = isPending ? orvane::pendingText() : cell.toolTip(*fields, *m_services);
    const QString tip = index.data(Qt::ToolTipRole).toString();
    if (own.isEmpty())
        return FoundTextDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), orvane::joinedToolTips(orvane::plainToolTip(own), tip), view->viewport());
    return true;
}

bool ValueDelegate::eventFilter(QObject* object, QEvent* event)
{
    if (object != m_viewport)
        return false; // editors handle their keys and the loss of the focus themselves
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return m_view != nullptr && dragOver(event);
    default:
        return false;
    }
}

// Files can be dropped on some cells. Elsewhere they are for the window, which may open them.
bool ValueDelegate::dragOver(QEvent* event)
{
    auto* const drop = static_cast<QDropEvent*>(event);
    const QString fileName = orvane::draggedFile(*drop->mimeData());
    const QModelIndex index = m_view->indexAt(drop->position().toPoint());
    const FieldSet* const fields = shownFields(index);
    const bool isForCell = !fileName.isEmpty() && fields != nullptr && (index.flags() & Qt::ItemIsEditable) != 0
        && m_view->itemDelegateForIndex(index) == this && orvane::cellOf(fields->first()).takesFiles();
    if (isForCell) {
        drop->acceptProposedAction();
        if (event->type() == QEvent::Drop)
            orvane::cellOf(fields->first()).dropFile({index, 0, CellEdit::Reason::Click, m_services.get()}, fileName);
        return true;
    }
    event->ignore();
    // An event that enters goes on to the window by itself.
    if (event->type() != QEvent::DragEnter)
        QCoreApplication::sendEvent(m_view->window(), event);
    return event->type() != QEvent::DragEnter || !fileName.isEmpty();
}
