#include "orvane/app/view/navigation/BookmarkMenu.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/base/PlainText.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/view/navigation/BookmarkDialog.h"
#include "orvane/app/view/navigation/SceneBookmarks.h"

#include <QAction>
#include <QInputDialog>
#include <QMenu>

BookmarkMenu::BookmarkMenu(SceneBookmarks& bookmarks, QWidget* parent)
    : QObject(parent)
    , m_bookmarks(bookmarks)
    , m_parent(parent)
    , m_menu(new QMenu(parent))
    , m_add(add(QStringLiteral("view.addBookmark"), QT_TR_NOOP("&Add Bookmark…"),
          QT_TR_NOOP("Keeps from where the view looks now")))
    , m_edit(add(QStringLiteral("view.editBookmarks"), QT_TR_NOOP("&Edit Bookmarks…"),
          QT_TR_NOOP("Renames, changes and removes the bookmarks of the scene")))
{
    orvane::followLanguage(this, [this] { m_menu->setTitle(tr("&Bookmarks")); });
    m_menu->setObjectName(QStringLiteral("bookmarkMenu"));
    m_add->setShortcut(Qt::CTRL | Qt::ALT | Qt::Key_B);
    m_menu->addActions({m_add, m_edit});
    m_menu->addSeparator();
    while (m_numbers.size() < keyCount)
        addNumber();
    connect(m_add, &QAction::triggered, this, &BookmarkMenu::askForName);
    connect(m_edit, &QAction::triggered, this, &BookmarkMenu::edit);
    connect(&bookmarks, &SceneBookmarks::changed, this, &BookmarkMenu::update);
    orvane::followLanguage(this, [this] { update(); });
}

QAction* BookmarkMenu::menuAction() const
{
    return m_menu->menuAction();
}

QAction* BookmarkMenu::add(const QString& name, const char* text, const char* tip)
{
    auto* const action = new QAction(this);
    orvane::followLanguage(action, [action, text, tip] {
        action->setText(tr(text));
        action->setStatusTip(tr(tip));
    });
    action->setObjectName(name);
    return action;
}

void BookmarkMenu::addNumber()
{
    const auto number = static_cast<int>(m_numbers.size());
    auto* const action = new QAction(this);
    action->setObjectName(QStringLiteral("view.bookmark%1").arg(number + 1));
    orvane::followLanguage(action, [action] { action->setStatusTip(tr("Looks from where this bookmark was set")); });
    if (number < keyCount)
        action->setShortcut(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + number));
    connect(action, &QAction::triggered, this, [this, number] { m_bookmarks.goTo(static_cast<std::size_t>(number)); });
    m_numbers.append(action);
}

void BookmarkMenu::update()
{
    const std::vector<ViewBookmark>& list = m_bookmarks.list();
    while (static_cast<std::size_t>(m_numbers.size()) < list.size())
        addNumber();
    for (int i = 0; i < m_numbers.size(); ++i) {
        const bool isThere = static_cast<std::size_t>(i) < list.size();
        const QString name = isThere ? orvane::menuText(list[static_cast<std::size_t>(i)].name) : QString();
        m_numbers[i]->setText(i < keyCount ? tr("&%1 %2").arg(QString::number(i + 1), name) : name);
        m_numbers[i]->setVisible(isThere);
        m_numbers[i]->setEnabled(isThere);
        m_menu->removeAction(m_numbers[i]);
        if (isThere)
            m_menu->addAction(m_numbers[i]);
    }
    orvane::setReason(*m_edit, list.empty() ? tr("The scene has no bookmarks.") : QString());
    const QString reason = m_bookmarks.isOpen()
        ? tr("A scene has %1 bookmarks at most. Remove one first.").arg(ViewBookmarks::mostBookmarks)
        : tr("No scene is open.");
    orvane::setReason(*m_add, m_bookmarks.canAdd() ? QString() : reason);
}

void BookmarkMenu::askForName()
{
    auto* const dialog = new QInputDialog(m_parent);
    dialog->setObjectName(QStringLiteral("bookmarkName"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(tr("Add Bookmark"));
    dialog->setLabelText(tr("Name:"));
    dialog->setTextValue(m_bookmarks.nextName());
    connect(dialog, &QInputDialog::textValueSelected, this, [this](const QString& name) { m_bookmarks.add(name); });
    dialog->open();
}

void BookmarkMenu::edit()
{
    (new BookmarkDialog(m_bookmarks, m_parent))->show(); // the view can be moved meanwhile
}
