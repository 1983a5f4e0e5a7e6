#pragma once

#include <QList>
#include <QObject>

class QAction;
class QMenu;
class SceneBookmarks;

/// The menu of the bookmarks of the open scene, with keys for the first nine of them.
class BookmarkMenu : public QObject {
    Q_OBJECT

public:
    /// How many have the keys Ctrl+1, Ctrl+2 and so on.
    static constexpr int keyCount = 9;

    /// The parent is where dialogs are opened. The bookmarks live as long.
    BookmarkMenu(SceneBookmarks& bookmarks, QWidget* parent);

    [[nodiscard]] QAction* menuAction() const;

private:
    QAction* add(const QString& name, const char* text, const char* tip);
    void addNumber();
    void update();
    void askForName();
    void edit();

    SceneBookmarks& m_bookmarks;
    QWidget* m_parent;
    QMenu* m_menu;
    QAction* m_add;
    QAction* m_edit;
    QList<QAction*> m_numbers; // those beyond the bookmarks are in no menu
};
