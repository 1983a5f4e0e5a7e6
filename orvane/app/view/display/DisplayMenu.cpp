#include "orvane/app/view/display/DisplayMenu.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/ViewInput.h"
#include "orvane/app/view/display/SectionBar.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>

#include <array>

namespace {

const QString shadingKey = QStringLiteral("view/shading");
const QString backgroundKey = QStringLiteral("view/background");
const QString statisticsKey = QStringLiteral("view/statistics");

} // namespace

DisplayMenu::DisplayMenu(SceneView* view, Session& session)
    : QObject(view)
    , m_view(view)
    , m_session(session)
    , m_menu(new QMenu(view))
    , m_shadings(new QActionGroup(this))
    , m_section(new SectionBar(view))
    , m_statistics(*view)
{
    orvane::followLanguage(this, [this] { m_menu->setTitle(tr("Disp&lay")); });
    m_menu->setObjectName(QStringLiteral("displayMenu"));
    const auto alt = [](Qt::Key key) { return QKeySequence(Qt::ALT | key); };
    addShading("shaded", QT_TR_NOOP("&Shaded"), QT_TR_NOOP("Shows materials and textures in the light of the scene"),
        alt(Qt::Key_1), NxDrawingStyle::SHADED);
    addShading("unlit", QT_TR_NOOP("&Unlit"), QT_TR_NOOP("Shows materials and textures without light and shade"),
        alt(Qt::Key_2), NxDrawingStyle::UNLIT);
    addShading("normals", QT_TR_NOOP("&Normals"),
        QT_TR_NOOP("Shows the normals: x red, y green, z blue, from -1 dark to 1 bright"), alt(Qt::Key_3),
        NxDrawingStyle::NORMALS);
    addShading("checker", QT_TR_NOOP("&Texture Coordinates"),
        QT_TR_NOOP("Shows the texture coordinates as a checker, u in red and v in green"), alt(Qt::Key_4),
        NxDrawingStyle::CHECKER);
    addShading("vertexColors", QT_TR_NOOP("&Vertex Colors"), QT_TR_NOOP("Shows the colors of the meshes alone"),
        alt(Qt::Key_5), NxDrawingStyle::VERTEX_COLORS);
    m_menu->addSeparator();
    addSwitch("wires", QT_TR_NOOP("&Wireframe over Surfaces"),
        QT_TR_NOOP("Shows the sides of the triangles over the surfaces"), alt(Qt::Key_6), &NxDrawingStyle::wires);
    addSwitch("headLight", QT_TR_NOOP("&Head Light"),
        QT_TR_NOOP("Adds a light at the viewer's eye to those of the scene"), alt(Qt::Key_7),
        &NxDrawingStyle::headLight);
    addBackground();
    m_menu->addSeparator();
    addSection();
    addStatistics();
}

DisplayMenu::~DisplayMenu() = default;

QAction* DisplayMenu::menuAction() const
{
    return m_menu->menuAction();
}

QAction* DisplayMenu::addAction(const char* name, const char* text, const char* tip, const QKeySequence& key)
{
    auto* const action = new QAction(this);
    orvane::followLanguage(action, [action, text, tip] {
        action->setText(tr(text));
        action->setToolTip(tr(tip));
        action->setStatusTip(tr(tip));
    });
    action->setObjectName(QStringLiteral("view.") + QLatin1String(name));
    action->setCheckable(true);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    m_view->addAction(action);
    m_menu->addAction(action);
    return action;
}

void DisplayMenu::addShading(
    const char* name, const char* text, const char* tip, const QKeySequence& key, NxDrawingStyle::Shading shading)
{
    QAction* const action = addAction(name, text, tip, key);
    m_shadings->addAction(action);
    const auto apply = [this, shading] {
        NxDrawingStyle style = m_view->style();
        style.shading = shading;
        m_view->setStyle(style);
    };
    const QString kept = QLatin1String(name);
    if (m_session.settings().value(shadingKey, QStringLiteral("shaded")).toString() == kept) {
        action->setChecked(true);
        apply();
    }
    connect(action, &QAction::triggered, m_view, [this, kept, apply] {
        m_session.settings().setValue(shadingKey, kept);
        apply();
    });
}

void DisplayMenu::addSwitch(
    const char* name, const char* text, const char* tip, const QKeySequence& key, bool NxDrawingStyle::*part)
{
    QAction* const action = addAction(name, text, tip, key);
    const auto apply = [this, part](bool isOn) {
        NxDrawingStyle style = m_view->style();
        style.*part = isOn;
        m_view->setStyle(style);
    };
    const QString kept = QStringLiteral("view/") + QLatin1String(name);
    action->setChecked(m_session.settings().value(kept, false).toBool());
    apply(action->isChecked());
    connect(action, &QAction::triggered, m_view, [this, kept, apply](bool isOn) {
        m_session.settings().setValue(kept, isOn);
        apply(isOn);
    });
}

void DisplayMenu::addBackground()
{
    QAction* const action = addAction("background", QT_TR_NOOP("Other &Background"),
        QT_TR_NOOP(
            "Shows the scene on light, on dark, or as the window is, so that lines and points of any color are seen"),
        QKeySequence(Qt::ALT | Qt::Key_0));
    action->setCheckable(false);
    setBackground(m_session.settings().value(backgroundKey, 0).toInt());
    connect(action, &QAction::triggered, m_view, [this] {
        setBackground(m_background + 1);
        m_session.settings().setValue(backgroundKey, m_background);
    });
}

void DisplayMenu::setBackground(int background)
{
    using orvane::ViewBackground;
    constexpr std::array backgrounds{ViewBackground::AsWindow, ViewBackground::Light, ViewBackground::Dark};
    m_background = background >= 0 && background < static_cast<int>(backgrounds.size()) ? background : 0;
    m_view->setBackground(backgrounds[static_cast<std::size_t>(m_background)]);
}

// In another scene, the plane would cut something else.
void DisplayMenu::addSection()
{
    QAction* const action = addAction("section", QT_TR_NOOP("Se&ction Plane"),
        QT_TR_NOOP("Cuts the scene open along a plane"), QKeySequence(Qt::ALT | Qt::Key_8));
    connect(action, &QAction::toggled, m_section, &SectionBar::setOn);
    const auto end = [this, action] {
        action->setChecked(false);
        m_view->setFocus();
    };
    connect(m_section, &SectionBar::closed, action, end);
    connect(&m_session.document(), &SceneDocument::sceneAboutToChange, action, [action] { action->setChecked(false); });
}

void DisplayMenu::addStatistics()
{
    QAction* const action = addAction("statistics", QT_TR_NOOP("St&atistics"),
        QT_TR_NOOP("Shows nodes, triangles, draw calls, memory and time of the picture"),
        QKeySequence(Qt::ALT | Qt::Key_9));
    m_view->input().addTool(&m_statistics);
    action->setChecked(m_session.settings().value(statisticsKey, false).toBool());
    m_statistics.setShown(action->isChecked());
    connect(action, &QAction::triggered, m_view, [this](bool isOn) {
        m_session.settings().setValue(statisticsKey, isOn);
        m_statistics.setShown(isOn);
    });
}
