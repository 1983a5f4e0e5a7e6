#include "orvane/app/window/LanguageMenu.h"

#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/language/Language.h"
#include "orvane/app/settings/SettingsStore.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>

namespace {

const QString languageKey = QStringLiteral("look/language");

} // namespace

LanguageMenu::LanguageMenu(SettingsStore& settings, QWidget* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_menu(new QMenu(parent))
    , m_choices(new QActionGroup(this))
{
    m_menu->setObjectName(QStringLiteral("languageMenu"));
    orvane::followLanguage(this, [this] { m_menu->setTitle(tr("Language")); });
    add(orvane::Language::system);
    for (const QString& code : orvane::Language::codes())
        add(code);
    settings.follow(languageKey, this, [this] {
        const QString choice = m_settings.text(languageKey);
        for (QAction* const action : m_choices->actions())
            action->setChecked(action->data().toString() == choice);
    });
}

QAction* LanguageMenu::menuAction() const
{
    return m_menu->menuAction();
}

void LanguageMenu::add(const QString& choice)
{
    QAction* const action = m_menu->addAction(QString());
    action->setObjectName(QStringLiteral("language.") + choice);
    action->setData(choice);
    action->setCheckable(true);
    m_choices->addAction(action);
    orvane::followLanguage(action, [action, choice] {
        const bool isSystem = choice == orvane::Language::system;
        // Each in its own language, so that everybody finds it.
        const QString name = orvane::Language::name(choice);
        action->setText(isSystem ? tr("As the &Desktop") : name);
        action->setStatusTip(isSystem ? tr("Shows all texts in the language of the desktop")
                                      : tr("Shows all texts in this language: %1").arg(name));
    });
    connect(action, &QAction::triggered, this, [this, choice] { m_settings.set(languageKey, choice); });
}
