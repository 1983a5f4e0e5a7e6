#pragma once

#include <QDialog>

class QListWidget;
class QPushButton;
class SceneBookmarks;

/// The bookmarks of the open scene, to be renamed in the list, looked from, changed and removed. Deletes itself when it
/// is closed.
class BookmarkDialog : public QDialog {
    Q_OBJECT

public:
    /// The bookmarks live longer.
    BookmarkDialog(SceneBookmarks& bookmarks, QWidget* parent);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QPushButton* addButton(const char* name, const char* text, const char* tip, void (BookmarkDialog::*run)());
    void fill();
    void updateButtons();
    void goTo();
    void rename();
    void setToView();
    void remove();
    [[nodiscard]] std::size_t current() const;

    SceneBookmarks& m_bookmarks;
    QListWidget* m_list;
    QPushButton* m_goTo;
    QPushButton* m_rename;
    QPushButton* m_set;
    QPushButton* m_remove;
};
