#include "orvane/app/view/navigation/NavigationActions.h"

#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/settings/SettingActions.h"
#include "orvane/app/settings/SettingsStore.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/navigation/BookmarkMenu.h"
#include "orvane/app/view/navigation/CameraActions.h"
#include "orvane/app/view/navigation/FlyTool.h"
#include "orvane/app/view/navigation/SceneBookmarks.h"
#include "orvane/app/view/navigation/ViewAnimation.h"

#include <QAction>
#include <QMenu>
#include <QStatusBar>

namespace {

const QString flySpeedKey = QStringLiteral("view/flySpeed");

QString navigationKey(const QAction& action)
{
    QString key = action.objectName();
    return key.replace(u'.', u'/');
}

} // namespace

NavigationActions::NavigationActions(SceneView* view, Session& session, SceneTreePanel* tree, NodeEditor& editor,
    const CameraMenu& cameras, QStatusBar* bar)
    : QObject(view)
    , m_settings(session.settings())
    , m_menu(new QMenu(view))
    , m_animation(new ViewAnimation(view))
    , m_bookmarks(new SceneBookmarks(view, session))
    , m_bookmarkMenu(new BookmarkMenu(*m_bookmarks, view))
{
    orvane::followLanguage(this, [this] { m_menu->setTitle(tr("Na&vigation")); });
    m_menu->setObjectName(QStringLiteral("navigationMenu"));
    auto* const fly = new FlyTool(view);
    SettingsStore& store = SettingsStore::of(m_settings);
    store.follow(flySpeedKey, fly, [&store, fly] { fly->setSpeedFactor(store.number(flySpeedKey)); });
    connect(fly, &FlyTool::said, bar, [bar](const QString& text) { bar->showMessage(text); });
    auto* const fromView = new CameraActions(view, session, tree, editor, cameras);
    connect(fromView, &CameraActions::said, bar, [bar](const QString& text) { bar->showMessage(text); });
    m_menu->addActions(fromView->actions());
    m_menu->addSeparator();

    QAction* const orbit = addSwitch("view.orbitPicked", QT_TR_NOOP("&Orbit about the Picked Point"),
        QT_TR_NOOP("A drag goes round what is under the pointer, rather than round the middle of the picture"));
    const auto setOrbit = [view](bool isOn) { view->navigation().setOrbitsPicked(isOn); };
    connect(orbit, &QAction::toggled, view, setOrbit);
    setOrbit(orbit->isChecked());

    QAction* const animate = addSwitch("view.animate", QT_TR_NOOP("&Animate the View"),
        QT_TR_NOOP("Views from the sides, framing and bookmarks are reached by a short movement, where the desktop "
                   "allows it"));
    const auto setAnimation = [this](bool isOn) { m_animation->setOn(isOn && ViewAnimation::isWanted()); };
    connect(animate, &QAction::toggled, m_animation, setAnimation);
    setAnimation(animate->isChecked());
}

QAction* NavigationActions::addSwitch(const char* name, const char* text, const char* tip)
{
    QAction* const action = m_menu->addAction(QString());
    orvane::followLanguage(action, [action, text, tip] {
        action->setText(tr(text));
        action->setToolTip(tr(tip));
        action->setStatusTip(tr(tip));
    });
    action->setObjectName(QLatin1String(name));
    orvane::followSwitch(SettingsStore::of(m_settings), navigationKey(*action), action);
    return action;
}

QList<QAction*> NavigationActions::menuActions() const
{
    return {m_menu->menuAction(), m_bookmarkMenu->menuAction()};
}
