#include "orvane/app/plugins/PluginActions.h"

#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/plugins/PluginLoader.h"
#include "orvane/app/plugins/PluginsDialog.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>

PluginActions::PluginActions(PluginLoader& loader, MessageBar& messages, QMenu& menu, QWidget* window)
    : QObject(window)
    , m_loader(loader)
    , m_messages(messages)
    , m_window(window)
{
    auto* const page = new QAction(this);
    page->setObjectName(QStringLiteral("help.plugins"));
    orvane::followLanguage(page, [page] {
        page->setText(tr("&Plug-ins..."));
        page->setStatusTip(tr("Shows the plug-ins, what is wrong with them, and a switch for each"));
    });
    connect(page, &QAction::triggered, this, &PluginActions::showPage);
    menu.insertAction(menu.actions().value(menu.actions().size() - 1), page); // "About" stays the last one
    connect(&loader, &PluginLoader::changed, this, &PluginActions::ask);
    ask();
}

void PluginActions::ask()
{
    for (const PluginRecord& plugin : m_loader.records()) {
        const QString fileName = plugin.fileName;
        const QString topic = QStringLiteral("plugin:") + fileName;
        if (plugin.state != PluginRecord::State::Suspect) {
            m_messages.clearTopic(topic);
            continue;
        }
        m_messages.showQuestion(
            tr("The plug-in %1 did not come through loading: the program ended meanwhile. It was left out.")
                .arg(QFileInfo(fileName).fileName()),
            topic,
            {{tr("Leave It Out"), QStringLiteral("leaveOut"),
                 [this, fileName] { m_loader.setSwitchedOff(fileName, true); }},
                {tr("Load It Now"), QStringLiteral("loadNow"), [this, fileName] {
                     if (const QString message = m_loader.loadNow(fileName); !message.isEmpty())
                         m_messages.showMessage(MessageBar::Severity::Error, message);
                 }}});
    }
}

void PluginActions::showPage()
{
    auto* const dialog = new PluginsDialog(m_loader, m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}
