#pragma once

#include "orvane/app/tree/facts/PlaceCount.h"

#include <QBasicTimer>
#include <QList>
#include <QObject>

#include <memory>

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

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    QAction* add(const char* name, const char* text, const char* tip, const QKeySequence& key);
    void hide();
    void isolate();
    void update();
    void countPlaces();
    void showStatus(std::size_t places);
    void endIsolation();

    SceneTreePanel* m_tree;
    SceneView* m_view;
    HiddenNodes& m_hidden;
    QAction* m_isolate;
    QAction* m_hide;
    QAction* m_showAll;
    QStatusBar* m_bar;
    QToolButton* m_status;
    std::unique_ptr<PlaceCount> m_places; // of the hidden nodes, while they are counted
    QBasicTimer m_slices;
    QBasicTimer m_removal; // runs once after rows were removed, however many
};
