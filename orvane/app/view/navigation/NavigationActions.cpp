#include "orvane/app/view/navigation/NavigationActions.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/navigation/FlyTool.h"
#include "orvane/app/view/navigation/ViewAnimation.h"

#include <QAction>
#include <QMenu>
#include <QStatusBar>

namespace {

QString navigationKey(const QAction& action)
{
    return QString(action.objectName()).replace(u'.', u'/');
}

} // namespace

NavigationActions::NavigationActions(SceneView* view, AppSettings& settings, QStatusBar* bar)
    : QObject(view)
    , m_view(view)
    , m_settings(settings)
    , m_menu(new QMenu(tr("Navigation"), view))
    , m_animation(new ViewAnimation(view))
{
    m_menu->setObjectName(QStringLiteral("navigationMenu"));
    auto* const fly = new FlyTool(view);
    connect(fly, &FlyTool::said, bar, [bar](const QString& text) { bar->showMessage(text); });

    QAction* const orbit = addSwitch("view.orbitPicked", tr("&Orbit about the Picked Point"),
        tr("A drag goes round what is under the pointer, rather than round the middle of the picture"), true);
    const auto setOrbit = [view](bool isOn) { view->navigation().setOrbitsPicked(isOn); };
    connect(orbit, &QAction::toggled, view, setOrbit);
    setOrbit(orbit->isChecked());

    QAction* const animate = addSwitch("view.animate", tr("&Animate the View"),
        tr("Views from the sides, framing and bookmarks are reached by a short movement, where the desktop allows it"),
        true);
    const auto setAnimation = [this](bool isOn) { m_animation->setOn(isOn && ViewAnimation::isWanted()); };
    connect(animate, &QAction::toggled, m_animation, setAnimation);
    setAnimation(animate->isChecked());
}

QAction* NavigationActions::addSwitch(const char* name, const QString& text, const QString& tip, bool isOn)
{
    QAction* const action = m_menu->addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setToolTip(tip);
    action->setStatusTip(tip);
    action->setCheckable(true);
    action->setChecked(m_settings.value(navigationKey(*action), isOn).toBool());
    connect(action, &QAction::triggered, this,
        [this, action](bool isNowOn) { m_settings.setValue(navigationKey(*action), isNowOn); });
    return action;
}

QAction* NavigationActions::menuAction() const
{
    return m_menu->menuAction();
}
