#include "orvane/app/view/ViewActions.h"

#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/settings/SettingActions.h"
#include "orvane/app/settings/SettingsStore.h"
#include "orvane/app/view/SceneView.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>

namespace {

QString keyOf(const char* name)
{
    return QStringLiteral("view/") + QLatin1String(name);
}

} // namespace

ViewActions::ViewActions(SceneView* view, AppSettings& settings)
    : QObject(view)
    , m_view(view)
    , m_settings(settings)
    , m_projections(new QActionGroup(this))
    , m_surfaces(new QActionGroup(this))
{
    m_framing.append(
        addAction("frameAll", QT_TR_NOOP("Frame &All"), QT_TR_NOOP("Brings all of the scene into view"), Qt::Key_A));
    connect(m_framing.back(), &QAction::triggered, view, &SceneView::frameAll);
    m_framing.append(addAction(
        "frameSelection", QT_TR_NOOP("Frame &Selection"), QT_TR_NOOP("Brings what is selected into view"), Qt::Key_F));
    connect(m_framing.back(), &QAction::triggered, view, &SceneView::frameSelection);

    const VbVec3f up(0, 1, 0);
    addAxis("front", QT_TR_NOOP("&Front"), Qt::Key_1, VbVec3f(0, 0, -1), up);
    addAxis("back", QT_TR_NOOP("&Back"), Qt::Key_2, VbVec3f(0, 0, 1), up);
    addAxis("right", QT_TR_NOOP("&Right"), Qt::Key_3, VbVec3f(-1, 0, 0), up);
    addAxis("left", QT_TR_NOOP("&Left"), Qt::Key_4, VbVec3f(1, 0, 0), up);
    addAxis("top", QT_TR_NOOP("&Top"), Qt::Key_5, VbVec3f(0, -1, 0), VbVec3f(0, 0, -1));
    addAxis("bottom", QT_TR_NOOP("B&ottom"), Qt::Key_6, VbVec3f(0, 1, 0), VbVec3f(0, 0, 1));

    m_axes.append(addAction("corner", QT_TR_NOOP("From a &Corner"),
        QT_TR_NOOP("Looks in perspective from the right, from above and from the front, as at first"), Qt::Key_7));
    connect(m_axes.back(), &QAction::triggered, view, &SceneView::lookFromCorner);

    addProjection(
        "perspective", QT_TR_NOOP("&Perspective"), QT_TR_NOOP("Distant things look smaller"), NxViewpoint::PERSPECTIVE);
    addProjection("orthographic", QT_TR_NOOP("&Orthographic"), QT_TR_NOOP("Things look the same size at any distance"),
        NxViewpoint::ORTHOGRAPHIC);
    addSurfaces("solid", QT_TR_NOOP("Soli&d"), QT_TR_NOOP("Surfaces are filled"), false);
    addSurfaces("wireframe", QT_TR_NOOP("&Wireframe"), QT_TR_NOOP("Surfaces show their edges alone"), true);
    addSwitch(
        "grid", QT_TR_NOOP("&Ground Grid"), QT_TR_NOOP("Shows a grid on the plane of x and z"), &NxDrawingStyle::grid);
    addSwitch("boundingBoxes", QT_TR_NOOP("&Bounding Boxes"), QT_TR_NOOP("Shows a box around each mesh"),
        &NxDrawingStyle::boundingBoxes);
    addSwitch("axes", QT_TR_NOOP("A&xes"), QT_TR_NOOP("Shows the axes: x red, y green, z blue"), &NxDrawingStyle::axes);
}

QAction* ViewActions::addAction(const char* name, const char* text, const char* toolTip, const QKeySequence& key)
{
    auto* action = new QAction(this);
    orvane::followLanguage(action, [action, text, toolTip] {
        action->setText(tr(text));
        action->setToolTip(tr(toolTip));
        action->setStatusTip(tr(toolTip));
    });
    action->setObjectName(QStringLiteral("view.") + QLatin1String(name));
    if (!key.isEmpty()) {
        action->setShortcut(key);
        action->setShortcutContext(Qt::WidgetShortcut);
        m_view->addAction(action);
    }
    return action;
}

void ViewActions::addAxis(const char* name, const char* text, Qt::Key key, const VbVec3f& direction, const VbVec3f& up)
{
    m_axes.append(addAction(name, text, QT_TR_NOOP("Looks along an axis"), key));
    connect(m_axes.back(), &QAction::triggered, m_view, [this, direction, up] { m_view->lookAlong(direction, up); });
}

void ViewActions::addProjection(
    const char* name, const char* text, const char* toolTip, NxViewpoint::Projection projection)
{
    QAction* action = addAction(name, text, toolTip);
    action->setCheckable(true);
    action->setData(projection);
    m_projections->addAction(action);
    connect(action, &QAction::triggered, m_view, [this, projection] { m_view->setProjection(projection); });
}

void ViewActions::addSurfaces(const char* name, const char* text, const char* toolTip, bool wireframe)
{
    QAction* action = addAction(name, text, toolTip);
    action->setCheckable(true);
    m_surfaces->addAction(action);
    const auto apply = [this, wireframe] {
        NxDrawingStyle style = m_view->style();
        style.surfaces = wireframe ? NxDrawingStyle::WIREFRAME : NxDrawingStyle::SOLID;
        m_view->setStyle(style);
    };
    const QString key = keyOf("wireframe");
    SettingsStore& store = SettingsStore::of(m_settings);
    store.follow(key, action, [&store, key, action, wireframe, apply] {
        if (store.isOn(key) != wireframe)
            return;
        action->setChecked(true);
        apply();
    });
    connect(action, &QAction::triggered, &store, [&store, key, wireframe] { store.set(key, wireframe); });
}

void ViewActions::addSwitch(const char* name, const char* text, const char* toolTip, bool NxDrawingStyle::*part)
{
    QAction* action = addAction(name, text, toolTip);
    m_switches.append(action);
    const auto apply = [this, part](bool on) {
        NxDrawingStyle style = m_view->style();
        style.*part = on;
        m_view->setStyle(style);
    };
    orvane::followSwitch(SettingsStore::of(m_settings), keyOf(name), action);
    apply(action->isChecked());
    connect(action, &QAction::toggled, m_view, apply);
}

void ViewActions::addTo(QMenu* menu)
{
    if (m_axesMenu == nullptr) {
        m_axesMenu = new QMenu(m_view);
        orvane::followLanguage(m_axesMenu, [this] { m_axesMenu->setTitle(tr("Look Along")); });
        m_axesMenu->setObjectName(QStringLiteral("axesMenu"));
        m_axesMenu->addActions(m_axes);
    }
    for (QAction* action : m_projections->actions())
        action->setChecked(action->data().toInt() == m_view->viewpoint().projection);
    menu->addActions(m_framing);
    menu->addSeparator();
    menu->addActions(m_projections->actions());
    menu->addSeparator();
    menu->addActions(m_surfaces->actions());
    menu->addSeparator();
    menu->addMenu(m_axesMenu);
}
