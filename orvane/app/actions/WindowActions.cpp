#include "orvane/app/actions/WindowActions.h"

#include "orvane/app/actions/KeyTips.h"
#include "orvane/app/actions/KeysDialog.h"
#include "orvane/app/actions/PickerPopup.h"
#include "orvane/app/fields/FieldPanel.h"
#include "orvane/app/fields/FieldTableView.h"
#include "orvane/app/files/FileFlow.h"
#include "orvane/app/inspect/Inspectors.h"
#include "orvane/app/inspect/SelectionLink.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/view/CameraMenu.h"
#include "orvane/app/view/navigation/SceneBookmarks.h"

#include <QAbstractItemView>
#include <QAction>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTreeView>

namespace {

/// Shows the dock that a widget is in, which may be closed or behind another.
void reveal(QWidget* widget)
{
    for (QWidget* above = widget; above != nullptr; above = above->parentWidget()) {
        if (auto* const dock = qobject_cast<QDockWidget*>(above)) {
            dock->show();
            dock->raise();
        }
    }
    widget->setFocus();
}

} // namespace

WindowActions::WindowActions(QMainWindow* window, Session& session, const Parts& parts)
    : QObject(window)
    , m_window(window)
    , m_parts(parts)
    , m_actions(window, session.settings())
    , m_places(session.services(), session.document(), parts.recent, session.settings(), window)
    , m_showKeys(
          add("help.keys", QT_TR_NOOP("&Keyboard Shortcuts…"), QT_TR_NOOP("Shows and changes the keys of all actions"),
              {QKeySequence(Qt::CTRL | Qt::Key_F1), QKeySequence(Qt::CTRL | Qt::Key_K, Qt::CTRL | Qt::Key_S)}))
    , m_keys(window, session.settings())
{
    QAction* const places = add("go.to", QT_TR_NOOP("&Go To…"),
        QT_TR_NOOP("Goes to a node, field, camera, bookmark or file by some letters of it"),
        {QKeySequence(Qt::CTRL | Qt::Key_P)});
    QAction* const palette = add("go.palette", QT_TR_NOOP("&Command Palette…"),
        QT_TR_NOOP("Runs any action by some letters of it"), {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P)});
    QMenu* const menu = window->menuBar()->addMenu(QString());
    orvane::followLanguage(menu, [menu] { menu->setTitle(tr("&Go")); });
    menu->setObjectName(QStringLiteral("goMenu"));
    menu->addActions({places, palette});
    connect(places, &QAction::triggered, this, [this] { open(m_places); });
    connect(palette, &QAction::triggered, this, [this] { open(m_actions); });
    connect(m_showKeys, &QAction::triggered, this, &WindowActions::showKeys);
    connect(&m_places, &GoToSource::wentTo, this, &WindowActions::goTo);
    connect(&m_places, &GoToSource::lookedThrough, &parts.cameras, &CameraMenu::follow);
    m_places.setBookmarks([this] {
        QStringList names;
        for (const ViewBookmark& bookmark : m_parts.bookmarks.list())
            names.append(bookmark.name);
        return names;
    });
    connect(&m_places, &GoToSource::bookmarkChosen, &parts.bookmarks, &SceneBookmarks::goTo);
    connect(&m_places, &GoToSource::opened, &parts.files,
        [this](const QString& fileName) { m_parts.files.open(fileName); });
    QAction* const menuOfSelection = add("window.contextMenu", QT_TR_NOOP("Context Menu"),
        QT_TR_NOOP("Opens the menu of what is selected in the part of the window with the focus"),
        {QKeySequence(Qt::SHIFT | Qt::Key_F10)});
    window->addAction(menuOfSelection);
    connect(menuOfSelection, &QAction::triggered, this, &WindowActions::openContextMenu);
    new KeyTips(this);
}

WindowActions::~WindowActions() = default;

QAction* WindowActions::add(const char* name, const char* text, const char* statusTip, const QList<QKeySequence>& keys)
{
    auto* const action = new QAction(this);
    orvane::followLanguage(action, [action, text, statusTip] {
        action->setText(tr(text));
        action->setStatusTip(tr(statusTip));
    });
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(keys);
    return action;
}

void WindowActions::open(PickerSource& source)
{
    if (m_popup == nullptr)
        m_popup = new PickerPopup(m_window);
    m_popup->open(source);
}

void WindowActions::goTo(const std::vector<NxNode*>& path, NxField* field)
{
    const QModelIndex index = m_parts.tree->model()->indexOfPath(path);
    if (!index.isValid())
        return;
    m_parts.inspectors.link().browse(index, field);
    reveal(field != nullptr ? static_cast<QWidget*>(m_parts.fields->view()) : m_parts.tree->view());
}

/// As the menu key does, which some keyboards don't have.
void WindowActions::openContextMenu()
{
    QWidget* const focus = m_window->focusWidget();
    if (focus == nullptr)
        return;
    QPoint place = focus->rect().center();
    if (const auto* const view = qobject_cast<QAbstractItemView*>(focus)) {
        const QRect row = view->visualRect(view->currentIndex());
        place = (row.isValid() ? row : view->viewport()->rect()).center();
    }
    QContextMenuEvent event(QContextMenuEvent::Keyboard, place, focus->mapToGlobal(place));
    QCoreApplication::sendEvent(focus, &event);
}

void WindowActions::showKeys()
{
    auto* const dialog = new KeysDialog(m_window, m_keys);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->open();
}
