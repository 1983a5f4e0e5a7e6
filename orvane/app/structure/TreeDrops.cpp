#include "orvane/app/structure/TreeDrops.h"

#include "orvane/app/structure/DraggedNodes.h"
#include "orvane/app/structure/DropMark.h"
#include "orvane/app/structure/NodeClipboard.h"
#include "orvane/app/structure/NodeEditor.h"
#include "orvane/app/structure/NodeEdits.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/tree/SceneTreeView.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>
#include <QScrollBar>

#include <utility>

namespace {

constexpr int dropScrollInterval = 40; // milliseconds
constexpr int unfoldDelay = 700;

Qt::DropAction actionOf(const QDropEvent& event)
{
    const bool isCopy = event.modifiers().testFlag(Qt::ControlModifier);
    if (isCopy && event.modifiers().testFlag(Qt::ShiftModifier))
        return Qt::LinkAction;
    return isCopy ? Qt::CopyAction : Qt::MoveAction;
}

} // namespace

TreeDrops::TreeDrops(SceneTreePanel* tree, NodeEditor& editor, NodeClipboard& clipboard, FileDrops& files)
    : QObject(tree)
    , m_tree(tree)
    , m_editor(editor)
    , m_clipboard(clipboard)
    , m_files(files)
    , m_mark(new DropMark(tree->view()->viewport()))
{
    QTreeView& view = *tree->view();
    view.setDragEnabled(true);
    view.viewport()->setAcceptDrops(true);
    view.viewport()->installEventFilter(this);
    connect(static_cast<SceneTreeView*>(&view), &SceneTreeView::dragStarted, this, &TreeDrops::startDrag);
}

TreeDrops::~TreeDrops() = default;

bool TreeDrops::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
        enter(static_cast<QDropEvent*>(event));
        return true;
    case QEvent::DragLeave:
        end();
        return true;
    case QEvent::Drop:
        drop(static_cast<QDropEvent*>(event));
        return true;
    default:
        return false;
    }
}

void TreeDrops::timerEvent(QTimerEvent* event)
{
    QTreeView& view = *m_tree->view();
    if (event->timerId() == m_unfold.timerId()) {
        m_unfold.stop();
        view.expand(view.indexAt(m_position).siblingAtColumn(SceneTreeModel::NameColumn));
        return;
    }
    const int margin = view.fontMetrics().height();
    QScrollBar& bar = *view.verticalScrollBar();
    if (m_position.y() < margin)
        bar.setValue(bar.value() - bar.singleStep());
    else if (m_position.y() > view.viewport()->height() - margin)
        bar.setValue(bar.value() + bar.singleStep());
}

void TreeDrops::startDrag()
{
    auto* const drag = new QDrag(m_tree->view());
    // Another program may ask for the nodes later than the drag ends.
    drag->setMimeData(new DraggedNodes(
        m_clipboard.draggedNodes(m_editor.selected()), [editor = QPointer(&m_editor)](const QString& reason) {
            if (editor != nullptr)
                Q_EMIT editor->said(reason);
        }));
    m_isDragging = true;
    drag->exec(Qt::MoveAction | Qt::CopyAction | Qt::LinkAction, Qt::MoveAction);
    m_isDragging = false;
    end();
}

void TreeDrops::enter(QDropEvent* event)
{
    const QPoint position = event->position().toPoint();
    if (position != m_position || event->type() == QEvent::DragEnter)
        m_unfold.start(unfoldDelay, this);
    m_position = position;
    if (!m_scroll.isActive())
        m_scroll.start(dropScrollInterval, this);
    const Target target = targetAt(position);
    const QString reason = refusal(*event, target);
    if (!reason.isEmpty()) {
        m_mark->hide();
        say(reason);
        // What isn't taken when it enters goes to the window, which would open it. The moves are refused.
        event->setDropAction(Qt::IgnoreAction);
        event->setAccepted(event->type() == QEvent::DragEnter);
        return;
    }
    if (orvane::hasFiles(*event->mimeData()))
        say(m_files.promise(*event->mimeData(), placeOf(target)));
    event->setDropAction(isOwn(*event) ? actionOf(*event) : Qt::CopyAction);
    event->accept();
}

void TreeDrops::drop(QDropEvent* event)
{
    const Target target = targetAt(event->position().toPoint());
    end();
    const bool own = isOwn(*event);
    const QString reason = refusal(*event, target);
    if (!reason.isEmpty()) {
        say(reason);
        event->ignore();
        return;
    }
    const Qt::DropAction action = own ? actionOf(*event) : Qt::CopyAction;
    event->setDropAction(action);
    event->accept();
    if (own)
        m_editor.apply(edit(target, action));
    else if (orvane::hasFiles(*event->mimeData()))
        m_files.take(*event->mimeData(), placeOf(target));
    else
        m_clipboard.insert(*event->mimeData(), target.spot);
}

void TreeDrops::end()
{
    m_mark->hide();
    m_scroll.stop();
    m_unfold.stop();
    m_said.clear();
}

// The upper and the lower edge of a row mean the place before and behind it, the middle of a group the group.
TreeDrops::Target TreeDrops::targetAt(const QPoint& position)
{
    NxGroup* const scene = m_editor.scene();
    if (scene == nullptr)
        return {{}, std::nullopt, true};
    const QTreeView& view = *m_tree->view();
    const QModelIndex index = view.indexAt(position).siblingAtColumn(SceneTreeModel::NameColumn);
    std::optional<meridane::NodeRows> node = orvane::nodeAt(*m_tree, index);
    if (!node) {
        m_mark->hide();
        return Target{{{scene}, {}, scene->getNumChildren()}, std::nullopt, true};
    }
    QRect row = view.visualRect(index);
    row.setRight(view.viewport()->width());
    auto* const group = dynamic_cast<NxGroup*>(&node->first());
    const int part = group != nullptr ? row.height() / 4 : row.height() / 2;
    const bool isBefore = position.y() < row.top() + part;
    const bool isBehind = !isBefore && position.y() > row.bottom() - part;
    NodeSpot spot{node->path, node->places, node->rows.front() + (isBefore ? 0 : 1)};
    const bool isFirstBelow = isBehind && view.isExpanded(index) && group != nullptr && group->getNumChildren() > 0;
    if (isBefore || (isBehind && !isFirstBelow)) {
        m_mark->showLine(row, isBehind);
        return Target{std::move(spot), group == nullptr ? node : std::nullopt, false};
    }
    if (group == nullptr) {
        m_mark->showFrame(row);
        return Target{std::move(spot), std::move(node), false};
    }
    spot.path.push_back(group);
    spot.places.push_back(node->rows.front());
    spot.index = isFirstBelow ? 0 : group->getNumChildren();
    if (isFirstBelow)
        m_mark->showLine(row, true);
    else
        m_mark->showFrame(row);
    return Target{std::move(spot), isFirstBelow ? std::nullopt : std::move(node), false};
}

FileDrops::Place TreeDrops::placeOf(const Target& target) const
{
    if (target.isGround)
        return {};
    return {target.node, target.spot};
}

bool TreeDrops::isOwn(const QDropEvent& event) const
{
    return m_isDragging || m_clipboard.isOfThisScene(*event.mimeData());
}

MadeEdit TreeDrops::edit(const Target& target, Qt::DropAction action) const
{
    const NodeEdits edits(*m_editor.scene());
    const meridane::NodeSet selected = m_editor.selected();
    if (action == Qt::LinkAction)
        return NodeEdits::share(selected, target.spot);
    return action == Qt::CopyAction ? edits.copy(selected, target.spot)
                                    : edits.move(selected, target.spot, m_editor.places());
}

QString TreeDrops::refusal(const QDropEvent& event, const Target& target) const
{
    const QMimeData& data = *event.mimeData();
    if (m_editor.scene() == nullptr && !orvane::hasFiles(data))
        return tr("Open a scene before you drop nodes.");
    if (isOwn(event))
        return actionOf(event) == Qt::CopyAction ? QString()
                                                 : NodeEdits::refusalOfMove(m_editor.selected(), target.spot.group());
    if (orvane::hasFiles(data))
        return m_files.refusal(data, placeOf(target));
    return orvane::hasNodes(data) ? QString() : tr("Only nodes, text and files can be dropped here.");
}

void TreeDrops::say(const QString& text)
{
    if (text != m_said)
        Q_EMIT m_editor.said(text);
    m_said = text;
}
