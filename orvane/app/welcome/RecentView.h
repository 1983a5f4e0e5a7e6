#pragma once

#include <QListView>
#include <QStringList>

class QAction;
class QSortFilterProxyModel;
class RecentModel;

/// The tiles of the recent files. Arrows go from one to the other, Return opens a file, Delete takes it off the list;
/// the context menu has these and more.
class RecentView : public QListView {
    Q_OBJECT

public:
    /// The model lives longer.
    explicit RecentView(RecentModel& model, QWidget* parent = nullptr);

    /// Shows the files whose name or folder has all words of the text.
    void search(const QString& text);
    /// The file that is marked; empty if none is.
    [[nodiscard]] QString currentFile() const;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void openRequested(const QString& fileName);
    void openInNewWindowRequested(const QString& fileName);
    void removeRequested(const QString& fileName);
    void pinRequested(const QString& fileName, bool pinned);
    /// The folder of a file can't be shown.
    void failed(const QString& message);

protected:
    void paintEvent(QPaintEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    QAction* add(const char* name, void (RecentView::*run)());
    void setTexts();
    void updateActions();
    void updateGrid();
    void remove();
    void showInFolder();
    void togglePin();
    [[nodiscard]] bool isCurrentPinned() const;

    RecentModel& m_model;
    QSortFilterProxyModel* m_found;
    QAction* m_open;
    QAction* m_openInNewWindow;
    QAction* m_showInFolder;
    QAction* m_pin;
    QAction* m_remove;
};
