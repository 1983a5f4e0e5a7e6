#include "orvane/app/inspect/FieldTitleBars.h"

#include "orvane/app/base/SliceClock.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/inspect/FieldTitleBar.h"
#include "orvane/app/inspect/NodeLock.h"
#include "orvane/app/inspect/ScenePlace.h"
#include "orvane/app/scene/NodeSearch.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/extender/OrvEditor.h"

#include "meridane/scene/fields/NxField.h"

#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>

namespace {

QDockWidget* dockAround(QWidget* widget)
{
    while (widget != nullptr && qobject_cast<QDockWidget*>(widget) == nullptr)
        widget = widget->parentWidget();
    return qobject_cast<QDockWidget*>(widget);
}

} // namespace

FieldTitleBars::FieldTitleBars(Session& session, SceneTreePanel* tree, const NodeLock& lock, QMainWindow* window)
    : QObject(window)
    , m_session(session)
    , m_tree(tree)
    , m_lock(lock)
    , m_window(window)
{
    const OrvServices& services = session.services();
    // All of these come before the docks, or a part of them, have changed.
    connect(&services, &OrvServices::selectedFieldChanged, this, &FieldTitleBars::updateSoon);
    connect(&services, &OrvServices::selectedNodeChanged, this, &FieldTitleBars::updateSoon);
    connect(&services, &OrvServices::documentEdited, this, &FieldTitleBars::updateSoon);
    connect(tree, &SceneTreePanel::selectionChanged, this, &FieldTitleBars::updateSoon);
    connect(&lock, &NodeLock::changed, this, &FieldTitleBars::updateSoon);
    connect(&session.document(), &SceneDocument::sceneAboutToChange, this, [this] {
        m_namer.clear();
        show({});
    });
}

FieldTitleBars::~FieldTitleBars()
{
    for (auto bar = m_bars.constBegin(); bar != m_bars.constEnd(); ++bar)
        bar.key()->removeEventFilter(this);
}

void FieldTitleBars::updateSoon()
{
    m_timer.start(0, this);
}

void FieldTitleBars::timerEvent(QTimerEvent*)
{
    const std::optional<QString> path = selectedPath();
    if (!path)
        return; // the timer goes on
    m_timer.stop();
    show(*path);
}

/// The path of the selected field, empty if there is none in the scene. Nothing if it takes another slice.
std::optional<QString> FieldTitleBars::selectedPath()
{
    const NxGroup* const scene = m_session.document().scene();
    const NxField* const field = m_session.services().getSelectedField();
    if (scene == nullptr || field == nullptr || field->getContainer() == nullptr)
        return QString();
    const std::vector<int> way = places();
    if (way.empty())
        return QString();
    const std::optional<std::string> path = m_namer.name(*scene, way, field, SliceClock::length);
    return path ? std::optional(orvane::toQString(*path)) : std::nullopt;
}

/// The indices that lead to the node of the selected field; none if it isn't in the scene.
std::vector<int> FieldTitleBars::places() const
{
    const NxGroup* const scene = m_session.document().scene();
    const NxFieldContainer* const node = m_session.services().getSelectedField()->getContainer();
    if (m_lock.isOn() && m_lock.node() == node)
        return m_lock.rows();
    if (m_tree->selectedNode() == node)
        return ScenePlace(m_tree->model()->path(m_tree->selected()), m_tree->selectedRows()).rows(*scene);
    const std::vector<NxNode*> path = orvane::findPath(scene, node);
    return path.empty() ? std::vector<int>() : ScenePlace(path).rows(*scene);
}

void FieldTitleBars::show(const QString& path)
{
    const QList<QDockWidget*> docks = editorDocks();
    for (QDockWidget* const dock : docks) {
        if (m_bars.contains(dock))
            continue;
        auto* const bar = new FieldTitleBar(dock);
        m_bars.insert(dock, bar);
        dock->setTitleBarWidget(bar);
        dock->installEventFilter(this);
        connect(dock, &QObject::destroyed, this, &FieldTitleBars::forget);
    }
    for (auto bar = m_bars.constBegin(); bar != m_bars.constEnd(); ++bar) {
        const bool hasField = docks.contains(bar.key()) && !path.isEmpty();
        bar.value()->setField(hasField ? path : QString(), hasField && m_lock.isOn());
    }
}

/// The docks in this window in which an extension edits the selected field.
QList<QDockWidget*> FieldTitleBars::editorDocks() const
{
    QList<QDockWidget*> docks;
    const NxField* const field = m_session.services().getSelectedField();
    if (field == nullptr)
        return docks;
    const QList<OrvExtension*> extensions = m_session.plugins().getExtensions();
    for (OrvExtension* const extension : extensions) {
        const auto* const editor = qobject_cast<OrvEditor*>(extension);
        if (editor == nullptr || !editor->isActive() || editor->getEditedObject() != field)
            continue;
        QDockWidget* const dock = dockAround(editor->getWidget());
        const bool isPlain = dock != nullptr && (dock->titleBarWidget() == nullptr || m_bars.contains(dock));
        if (isPlain && dock->parentWidget() == m_window && !docks.contains(dock)
            && !dock->features().testFlag(QDockWidget::DockWidgetVerticalTitleBar))
            docks.append(dock);
    }
    return docks;
}

bool FieldTitleBars::eventFilter(QObject* object, QEvent* event)
{
    auto* const dock = qobject_cast<QDockWidget*>(object);
    if (event->type() != QEvent::ParentChange || dock == nullptr || dock->parentWidget() == m_window)
        return false;
    // Its extension takes it back.
    dock->removeEventFilter(this);
    disconnect(dock, &QObject::destroyed, this, nullptr);
    if (FieldTitleBar* const bar = m_bars.take(dock)) {
        if (dock->titleBarWidget() == bar)
            dock->setTitleBarWidget(nullptr);
        bar->deleteLater();
    }
    return false;
}

void FieldTitleBars::forget(QObject* dock)
{
    // At this point of its destruction the object is only a QObject.
    m_bars.removeIf([dock](const auto& entry) { return static_cast<const void*>(entry.key()) == dock; });
}
