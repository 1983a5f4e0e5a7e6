#pragma once

#include <QList>
#include <QObject>

class HiddenNodes;
class QAction;
class QStatusBar;
class QToolButton;
class SceneTreePanel;
class SceneView;

/// Hides and isolates the selected nodes and shows all again, by keys in tree and view; a button in the status bar says
/// that something isn't shown and brings it back.
class HidingActions : public QObject {
    Q_OBJECT

public:
    HidingActions(SceneView* view, SceneTreePanel* tree, QStatusBar* bar);

    /// To isolate, hide and show all, for menus.
    [[nodiscard]] QList<QAction*> actions() const { return nodeActions() << m_showAll; }
    /// Those about the selected nodes.
    [[nodiscard]] QList<QAction*> nodeActions() const { return {m_isolate, m_hide}; }

private:
    QAction* add(const char* name, const QString& text, const QString& tip, const QKeySequence& key);
    void hide();
    void isolate();
    void update();

    SceneTreePanel* m_tree;
    SceneView* m_view;
    HiddenNodes& m_hidden;
    QAction* m_isolate;
    QAction* m_hide;
    QAction* m_showAll;
    QToolButton* m_status;
};
