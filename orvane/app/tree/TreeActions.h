#pragma once

#include <QList>
#include <QObject>

#include <functional>

class QAction;
class QMenu;
class QStatusBar;
class SceneTreePanel;

/// Actions of the scene tree: what it shows unfolded, and which rows are selected by their relation to those that are.
class TreeActions : public QObject {
    Q_OBJECT

public:
    /// Messages are shown in the bar.
    TreeActions(SceneTreePanel* tree, QStatusBar* bar);

    /// Menus with them, for a menu.
    [[nodiscard]] QList<QAction*> menuActions() const;

Q_SIGNALS:
    /// Something that the user should know, such as that not all could be unfolded.
    void noted(const QString& message);

private:
    QAction* add(QMenu* menu, const char* name, const char* text, const char* tip, const QKeySequence& key,
        const std::function<void()>& run);
    void addFolding();
    void addSelecting();
    void unfoldSelected();
    void foldSelected();
    void unfoldTo(int level);
    void noteCut(int levels);
    void selectChildren();
    void selectSameClass();
    void invert();
    void update();

    SceneTreePanel* m_tree;
    QMenu* m_foldMenu;
    QMenu* m_selectMenu;
    QList<QAction*> m_ofSelection;
    QList<QAction*> m_ofScene;
};
