#include "orvane/app/inspect/PlaceActions.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/inspect/SelectionLink.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/tree/NodeIcons.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"

#include "meridane/scene/fields/NxField.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMouseEvent>
#include <QToolBar>
#include <QToolButton>

#include <utility>

using Direction = PlaceHistory::Direction;

namespace {

constexpr std::size_t mostListed = 20;

QString nameOf(const NxNode& node)
{
    const QString className = QString::fromUtf8(node.getClassName());
    const QString name = orvane::toQString(node.getName());
    return orvane::menuText(name.isEmpty() ? className : PlaceActions::tr("%1 — %2").arg(name, className));
}

} // namespace

PlaceActions::PlaceActions(Session& session, SceneTreePanel* tree, SelectionLink& link, QMainWindow* window)
    : QObject(window)
    , m_session(session)
    , m_tree(tree)
    , m_link(link)
    , m_window(window)
    , m_back(makeWay(Direction::Back, QT_TR_NOOP("Bac&k"), QT_TR_NOOP("Selects the node that was selected before")))
    , m_forward(makeWay(Direction::Forward, QT_TR_NOOP("&Forward"), QT_TR_NOOP("Selects the node that Back has left")))
{
    m_back.action->setObjectName(QStringLiteral("selection.back"));
    m_back.action->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Left));
    m_forward.action->setObjectName(QStringLiteral("selection.forward"));
    m_forward.action->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Right));
    connect(tree, &SceneTreePanel::selectionChanged, this, &PlaceActions::noteNode);
    connect(&session.services(), &OrvServices::selectedFieldChanged, this, &PlaceActions::noteField);
    connect(&session.services(), &OrvServices::documentEdited, this, &PlaceActions::noteEdit);
    connect(&session.document(), &SceneDocument::sceneAboutToChange, this, [this] {
        m_history.clear();
        update();
    });
    QCoreApplication::instance()->installEventFilter(this);
    orvane::followLanguage(this, [this] { update(); });
}

PlaceActions::~PlaceActions() = default;

PlaceActions::Way PlaceActions::makeWay(Direction direction, const char* text, const char* statusTip)
{
    const Way way{direction, new QAction(this), new QMenu(m_window)};
    orvane::followLanguage(way.action, [action = way.action, text, statusTip] {
        action->setText(tr(text));
        action->setStatusTip(tr(statusTip));
    });
    way.places->setToolTipsVisible(true);
    connect(way.action, &QAction::triggered, this, [this, direction] { go(direction); });
    connect(way.places, &QMenu::aboutToShow, this, [this, way] { listPlaces(way); });
    return way;
}

void PlaceActions::addTo(QToolBar* toolBar)
{
    for (const Way& way : {m_back, m_forward}) {
        auto* button = new QToolButton(toolBar);
        button->setDefaultAction(way.action);
        button->setPopupMode(QToolButton::MenuButtonPopup);
        button->setMenu(way.places);
        button->setObjectName(way.action->objectName() + QStringLiteral("Button"));
        toolBar->addWidget(button);
    }
}

void PlaceActions::noteNode(NxNode* node)
{
    const std::vector<NxNode*> path = m_tree->model()->path(m_tree->selected());
    if (node == nullptr || path.empty())
        m_history.leave();
    else
        m_history.visit(path, m_tree->selectedRows());
    noteField(m_session.services().getSelectedField());
    update();
}

void PlaceActions::noteField(NxField* field)
{
    // A field is also deselected because its node will be.
    if (field != nullptr && field->getContainer() != nullptr)
        m_history.noteField(*field->getContainer(), field->getContainer()->getFieldName(field));
}

void PlaceActions::noteEdit()
{
    const std::uint64_t revision = NxFieldContainer::getStructureRevision();
    if (std::exchange(m_revision, revision) != revision)
        update();
}

void PlaceActions::update()
{
    const NxGroup* const scene = m_session.document().scene();
    for (const Way& way : {m_back, m_forward}) {
        const bool hasPlaces = scene != nullptr && !m_history.places(way.direction, *scene, 1).empty();
        const QString reason
            = way.direction == Direction::Back ? tr("Nothing else was selected before.") : tr("You haven't gone back.");
        orvane::setReason(*way.action, hasPlaces ? QString() : reason);
    }
}

void PlaceActions::listPlaces(const Way& way)
{
    way.places->clear();
    const NxGroup* const scene = m_session.document().scene();
    if (scene == nullptr)
        return;
    for (const std::size_t place : m_history.places(way.direction, *scene, mostListed)) {
        const NxNode& node = *m_history.node(place);
        QAction* const action = way.places->addAction(orvane::nodeIcon(node.getTypeId()), nameOf(node));
        // The list may change while the menu is open.
        connect(action, &QAction::triggered, this, [this, place, wanted = &node] {
            const NxGroup* const present = m_session.document().scene();
            if (present != nullptr && m_history.isPlaceOf(place, wanted, *present))
                goTo(place);
        });
    }
}

void PlaceActions::go(Direction direction)
{
    const NxGroup* const scene = m_session.document().scene();
    if (scene == nullptr)
        return;
    const std::vector<std::size_t> places = m_history.places(direction, *scene, 1);
    if (!places.empty())
        goTo(places.front());
    update();
}

void PlaceActions::goTo(std::size_t place)
{
    const PlaceHistory::Stop stop = m_history.goTo(place, *m_session.document().scene());
    m_link.browse(m_tree->model()->indexOfPath(stop.path),
        stop.field.isEmpty() ? nullptr : stop.path.back()->getField(stop.field));
    update();
}

bool PlaceActions::eventFilter(QObject* object, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonDblClick && type != QEvent::MouseButtonRelease)
        return false;
    const Qt::MouseButton button = static_cast<QMouseEvent*>(event)->button();
    if ((button != Qt::BackButton && button != Qt::ForwardButton) || !isInWindow(object))
        return false;
    if (type != QEvent::MouseButtonRelease)
        go(button == Qt::BackButton ? Direction::Back : Direction::Forward);
    return true;
}

/// Whether it is a widget of the window or of one of its floating docks, and the user may use it now.
bool PlaceActions::isInWindow(const QObject* object) const
{
    const auto* const widget = qobject_cast<const QWidget*>(object);
    if (widget == nullptr || QApplication::activeModalWidget() != nullptr
        || QApplication::activePopupWidget() != nullptr)
        return false;
    return widget->window() == m_window || widget->window()->parentWidget() == m_window;
}
