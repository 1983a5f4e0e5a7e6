#include "orvane/app/view/display/DisplayMenu.h"

#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/settings/SettingActions.h"
#include "orvane/app/settings/SettingsStore.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/ViewInput.h"
#include "orvane/app/view/display/SectionBar.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>

#include <algorithm>
#include <array>
#include <cstddef>

namespace {

const QString shadingKey = QStringLiteral("view/shading");
const QString backgroundKey = QStringLiteral("view/background");
const QString samplesKey = QStringLiteral("view/samples");
const QString statisticsKey = QStringLiteral("view/statistics");

struct Background {
    const char* value; // of the setting
    orvane::ViewBackground background;
};
constexpr std::array backgrounds{Background{"window", orvane::ViewBackground::AsWindow},
    Background{"light", orvane::ViewBackground::Light}, Background{"dark", orvane::ViewBackground::Dark}};

std::size_t backgroundIndex(const QString& value)
{
    const auto* const found = std::find_if(backgrounds.begin(), backgrounds.end(),
        [&value](const Background& one) { return value == QLatin1String(one.value); });
    return found == backgrounds.end() ? 0 : static_cast<std::size_t>(found - backgrounds.begin());
}

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
    SettingsStore& store = SettingsStore::of(session.settings());
    store.follow(samplesKey, this, [this, &store] {
        m_view->drawing().setSamples(store.text(samplesKey).toInt());
        m_view->setStyle(m_view->style()); // draws it again
    });
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
    orvane::followChoice(SettingsStore::of(m_session.settings()), shadingKey, QLatin1String(name), action);
    if (action->isChecked())
        apply();
    connect(action, &QAction::toggled, m_view, [apply](bool isChosen) {
        if (isChosen)
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
    orvane::followSwitch(
        SettingsStore::of(m_session.settings()), QStringLiteral("view/") + QLatin1String(name), action);
    apply(action->isChecked());
    connect(action, &QAction::toggled, m_view, apply);
}

void DisplayMenu::addBackground()
{
    QAction* const action = addAction("background", QT_TR_NOOP("Other &Background"),
        QT_TR_NOOP(
            "Shows the scene on light, on dark, or as the window is, so that lines and points of any color are seen"),
        QKeySequence(Qt::ALT | Qt::Key_0));
    action->setCheckable(false);
    SettingsStore& store = SettingsStore::of(m_session.settings());
    store.follow(backgroundKey, action,
        [this, &store] { m_view->setBackground(backgrounds[backgroundIndex(store.text(backgroundKey))].background); });
    connect(action, &QAction::triggered, &store, [&store] {
        const std::size_t next = (backgroundIndex(store.text(backgroundKey)) + 1) % backgrounds.size();
        store.set(backgroundKey, QLatin1String(backgrounds[next].value));
    });
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
    orvane::followSwitch(SettingsStore::of(m_session.settings()), statisticsKey, action);
    m_statistics.setShown(action->isChecked());
    connect(action, &QAction::toggled, m_view, [this](bool isOn) { m_statistics.setShown(isOn); });
}
