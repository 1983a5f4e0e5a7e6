#include "orvane/app/settings/window/SettingsActions.h"

#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/settings/SettingsStore.h"
#include "orvane/app/settings/window/SettingsWindow.h"

#include <QAction>
#include <QMainWindow>

#include <utility>

namespace {

const QString topic = QStringLiteral("settings");

} // namespace

SettingsActions::SettingsActions(AppSettings& settings, MessageBar& messages, QMainWindow* window)
    : QObject(window)
    , m_settings(settings)
    , m_messages(messages)
    , m_window(window)
    , m_action(new QAction(this))
{
    m_action->setObjectName(QStringLiteral("edit.settings"));
    m_action->setMenuRole(QAction::PreferencesRole);
    m_action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Comma));
    orvane::followLanguage(this, [this] {
        m_action->setText(tr("Sett&ings…"));
        m_action->setStatusTip(tr("Shows and changes the settings of the tool"));
    });
    connect(m_action, &QAction::triggered, this, &SettingsActions::open);
    connect(&settings, &AppSettings::failed, this, &SettingsActions::report);
    report();
    for (const QString& sentence : SettingsStore::of(settings).unusableValues())
        messages.showMessage(MessageBar::Severity::Warning, sentence);
}

void SettingsActions::report()
{
    if (const QString problem = m_settings.problem(); !problem.isEmpty())
        m_messages.showMessage(MessageBar::Severity::Warning, problem, topic);
}

void SettingsActions::open()
{
    if (m_opened == nullptr) {
        std::vector<SettingsWindow::Link> links;
        for (const auto& [page, name] :
            {std::pair(SettingPage::Plugins, "help.plugins"), std::pair(SettingPage::Keys, "help.keys")}) {
            if (auto* const action = m_window->findChild<QAction*>(QLatin1String(name)))
                links.push_back({page, action});
        }
        m_opened = new SettingsWindow(SettingsStore::of(m_settings), std::move(links), m_window);
    }
    m_opened->show();
    m_opened->raise();
    m_opened->activateWindow();
}
