#include "orvane/app/look/Theme.h"

#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/look/DesktopScheme.h"
#include "orvane/app/look/ThemePalette.h"
#include "orvane/app/settings/SettingsStore.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QStyle>
#include <QToolTip>

#include <algorithm>
#include <utility>

namespace {

const QString settingsKey = QStringLiteral("look/theme");

// In the order of the choices.
const QStringList settingsNames{QStringLiteral("system"), QStringLiteral("light"), QStringLiteral("dark")};

/// What tool tips have before the tool changes it.
const QPalette& desktopToolTips()
{
    static const QPalette palette = QToolTip::palette();
    return palette;
}

void use(bool isDark)
{
    const QPalette palette = isDark ? orvane::look::darkPalette() : orvane::look::lightPalette();
    QToolTip::setPalette(palette);
    QApplication::setPalette(palette);
}

} // namespace

Theme::Theme(SettingsStore& settings, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_actions(new QActionGroup(this))
{
    desktopToolTips();
    addAction("look.themeSystem", Choice::System);
    addAction("look.themeLight", Choice::Light);
    addAction("look.themeDark", Choice::Dark);
    orvane::followLanguage(this, [this] {
        const QList<QAction*> all = actions();
        all[0]->setText(tr("As the &Desktop"));
        all[0]->setStatusTip(tr("The window is light or dark as the desktop is"));
        all[1]->setText(tr("&Light"));
        all[1]->setStatusTip(tr("The window is light, with colors of its own"));
        all[2]->setText(tr("Dar&k"));
        all[2]->setStatusTip(tr("The window is dark, with colors of its own"));
    });
    settings.follow(settingsKey, this, [this] { followSettings(); });
}

void Theme::addAction(const char* name, Choice choice)
{
    auto* const action = new QAction(this);
    action->setObjectName(QLatin1String(name));
    action->setCheckable(true);
    m_actions->addAction(action);
    connect(action, &QAction::triggered, this, [this, choice] { choose(choice); });
}

QList<QAction*> Theme::actions() const
{
    return m_actions->actions();
}

void Theme::choose(Choice choice)
{
    m_settings.set(settingsKey, settingsNames.at(static_cast<int>(choice)));
}

void Theme::followSettings()
{
    m_choice = static_cast<Choice>(std::max(qsizetype(0), settingsNames.indexOf(m_settings.text(settingsKey))));
    actions().at(static_cast<int>(m_choice))->setChecked(true);
    apply();
}

void Theme::followPortal()
{
    if (m_portal != nullptr)
        return;
    m_portal = new DesktopScheme(this);
    connect(m_portal, &DesktopScheme::changed, this, [this](bool isDark) {
        m_prefersDark = isDark;
        if (m_choice == Choice::System)
            apply();
    });
    m_portal->start();
    apply();
}

void Theme::apply()
{
    if (m_choice != Choice::System) {
        m_hasOwn = true;
        use(m_choice == Choice::Dark);
        return;
    }
    if (std::exchange(m_hasOwn, false)) {
        QToolTip::setPalette(desktopToolTips());
        QApplication::setPalette(QPalette());
    }
    // Where no desktop has set another one.
    if (m_portal != nullptr && QApplication::palette() == QApplication::style()->standardPalette()) {
        m_hasOwn = true;
        use(m_prefersDark);
    }
}
