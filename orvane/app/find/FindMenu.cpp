#include "orvane/app/find/FindMenu.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/find/FindEdit.h"
#include "orvane/app/find/FindLine.h"
#include "orvane/app/find/KeptSearches.h"
#include "orvane/app/language/FollowLanguage.h"

#include <QAction>
#include <QInputDialog>
#include <QMenu>

#include <functional>

namespace {

// Of the name of a search.
constexpr int mostCharactersInMenu = 60;

QString menuText(const QString& text)
{
    return orvane::shortLine(text, mostCharactersInMenu).replace(u'&', QStringLiteral("&&"));
}

/// Asks for a name until it is taken; `take` returns why it can't be.
void askForName(QWidget* parent, const QString& title, const QString& label, const QString& name,
    const std::function<QString(const QString&)>& take)
{
    auto* const dialog = new QInputDialog(parent);
    dialog->setObjectName(QStringLiteral("searchName"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(title);
    dialog->setLabelText(label);
    dialog->setTextValue(name);
    QObject::connect(dialog, &QInputDialog::textValueSelected, parent, [=](const QString& given) {
        const QString refusal = take(given);
        if (!refusal.isEmpty())
            askForName(parent, title, refusal, given, take);
    });
    dialog->open();
}

} // namespace

FindMenu::FindMenu(KeptSearches& kept, FindLine& line)
    : QObject(&line)
    , m_kept(kept)
    , m_line(line)
{
    connect(line.menu(), &QMenu::aboutToShow, this, &FindMenu::fill);
    orvane::followLanguage(this, [this] { fill(); }); // so that the menu isn't empty, which has no shape
}

void FindMenu::fill()
{
    QMenu& menu = *m_line.menu();
    menu.clear();
    menu.setToolTipsVisible(true);
    const QString text = m_line.edit()->text();
    const QString current = m_kept.nameOf(text);
    for (const QString& name : m_kept.names()) {
        QAction* const action = menu.addAction(menuText(name));
        action->setObjectName(QStringLiteral("find.kept"));
        action->setStatusTip(tr("Searches for this again"));
        action->setToolTip(orvane::plainToolTip(m_kept.text(name)));
        action->setCheckable(true);
        action->setChecked(name == current);
        connect(action, &QAction::triggered, this, [this, name] {
            m_line.edit()->setText(m_kept.text(name));
            m_line.edit()->setFocus();
        });
    }
    menu.addSeparator();
    QAction* const keep = menu.addAction(tr("&Keep This Search\u2026"));
    keep->setEnabled(!text.isEmpty() && current.isEmpty());
    keep->setToolTip(text.isEmpty() ? tr("Nothing is searched for")
            : current.isEmpty()     ? tr("Keeps the search by a name of your own")
                                    : tr("This search is kept already"));
    connect(keep, &QAction::triggered, this, &FindMenu::keep);
    const QString about = current.isEmpty() ? QString() : menuText(current);
    QAction* const rename
        = menu.addAction(current.isEmpty() ? tr("&Rename\u2026") : tr("&Rename \u201C%1\u201D\u2026").arg(about));
    QAction* const remove = menu.addAction(current.isEmpty() ? tr("&Delete") : tr("&Delete \u201C%1\u201D").arg(about));
    for (QAction* const action : {rename, remove}) {
        action->setEnabled(!current.isEmpty());
        action->setToolTip(current.isEmpty() ? tr("Choose a kept search first") : QString());
    }
    connect(rename, &QAction::triggered, this, [this, current] { this->rename(current); });
    connect(remove, &QAction::triggered, this, [this, current] { m_kept.remove(current); });
    keep->setStatusTip(tr("Stores the search with the settings, by a name"));
    rename->setStatusTip(tr("Gives the kept search another name"));
    remove->setStatusTip(tr("Deletes the kept search"));
    keep->setObjectName(QStringLiteral("find.keep"));
    rename->setObjectName(QStringLiteral("find.renameKept"));
    remove->setObjectName(QStringLiteral("find.deleteKept"));
}

void FindMenu::keep()
{
    const QString text = m_line.edit()->text();
    askForName(&m_line, tr("Keep Search"), tr("Name of the search:"), text.left(KeptSearches::mostCharacters),
        [this, text](const QString& name) { return m_kept.keep(name, text); });
}

void FindMenu::rename(const QString& name)
{
    askForName(&m_line, tr("Rename Search"), tr("Another name of the search:"), name,
        [this, name](const QString& given) { return m_kept.rename(name, given); });
}
