#include "orvane/app/inspect/InspectorDocks.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/inspect/InspectorDock.h"
#include "orvane/app/inspect/NodeLock.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"

#include <QAction>
#include <QMainWindow>

#include <algorithm>

namespace {

const QString numbersKey = QStringLiteral("window/inspectors");
constexpr int firstNumber = 2; // the table of the selection is the first inspector

} // namespace

InspectorDocks::InspectorDocks(Session& session, SceneTreePanel* tree, QMainWindow* window)
    : QObject(window)
    , m_session(session)
    , m_tree(tree)
    , m_window(window)
    , m_newAction(new QAction(this))
{
    m_newAction->setObjectName(QStringLiteral("inspector.new"));
    m_newAction->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_I));
    orvane::followLanguage(this, [this] {
        m_newAction->setText(tr("New &Inspector"));
        m_newAction->setStatusTip(
            tr("Opens a further table of fields, which stays on this node; %1 at most").arg(mostDocks));
        update();
    });
    connect(m_newAction, &QAction::triggered, this, &InspectorDocks::open);
}

InspectorDocks::~InspectorDocks()
{
    // The window deletes them later.
    for (InspectorDock* const dock : m_docks)
        disconnect(dock, nullptr, this, nullptr);
}

void InspectorDocks::restore()
{
    for (const QString& text : m_session.settings().value(numbersKey).toStringList()) {
        const int number = text.toInt();
        const bool isThere = std::any_of(
            m_docks.begin(), m_docks.end(), [number](const InspectorDock* dock) { return dock->number() == number; });
        if (number >= firstNumber && number < firstNumber + mostDocks && !isThere)
            add(number);
    }
}

void InspectorDocks::followReloads(const FileFlow& flow)
{
    m_flow = &flow;
    for (InspectorDock* const dock : m_docks)
        dock->lock().followReloads(flow);
}

void InspectorDocks::open()
{
    if (m_docks.size() == mostDocks)
        return;
    const std::vector<NxNode*> path = m_tree->model()->path(m_tree->selected());
    InspectorDock* const dock = add(freeNumber());
    // A second table of the selection would be the same as the first.
    if (!path.empty())
        dock->lock().lock(path);
    store();
}

InspectorDock* InspectorDocks::add(int number)
{
    auto* const dock = new InspectorDock(number, m_session, m_tree, m_window);
    m_docks.append(dock);
    if (m_flow != nullptr)
        dock->lock().followReloads(*m_flow);
    connect(dock, &QObject::destroyed, this, [this, number](const QObject* gone) { forget(gone, number); });
    auto* const fields = m_window->findChild<QDockWidget*>(QStringLiteral("fieldsDock"), Qt::FindDirectChildrenOnly);
    m_window->addDockWidget(Qt::RightDockWidgetArea, dock);
    if (fields != nullptr && fields->isVisible() && !fields->isFloating()) {
        // Below where both would be too narrow beside each other.
        const int enough = fields->fontMetrics().averageCharWidth() * 80;
        m_window->splitDockWidget(fields, dock, fields->width() >= enough ? Qt::Horizontal : Qt::Vertical);
    }
    dock->show();
    update();
    Q_EMIT added(dock);
    return dock;
}

void InspectorDocks::forget(const QObject* dock, int number)
{
    // At this point of its destruction the object is only a QObject.
    m_docks.removeIf([dock](const InspectorDock* other) { return static_cast<const void*>(other) == dock; });
    update();
    store();
    Q_EMIT removed(number);
}

void InspectorDocks::update()
{
    orvane::setReason(*m_newAction,
        m_docks.size() < mostDocks ? QString() : tr("There are %1 inspectors. Close one first.").arg(mostDocks));
}

void InspectorDocks::store()
{
    QStringList numbers;
    for (const InspectorDock* const dock : m_docks)
        numbers.append(QString::number(dock->number()));
    m_session.settings().setValue(numbersKey, numbers);
}

int InspectorDocks::freeNumber() const
{
    int number = firstNumber;
    const auto isTaken = [this](int wanted) {
        return std::any_of(
            m_docks.begin(), m_docks.end(), [wanted](const InspectorDock* dock) { return dock->number() == wanted; });
    };
    while (isTaken(number))
        ++number;
    return number;
}
