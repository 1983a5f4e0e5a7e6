#pragma once

#include <QBasicTimer>
#include <QObject>

class QLabel;
class QStatusBar;
class SceneTreePanel;
class SelectionLabel;
class Session;

/// Tells in the status bar where the selection stands in the scene and how much it holds.
class SelectionStatus : public QObject {
    Q_OBJECT

public:
    SelectionStatus(Session& session, SceneTreePanel* tree, QStatusBar* bar);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void updateSoon();

    Session& m_session;
    SceneTreePanel* m_tree;
    SelectionLabel* m_path;
    QLabel* m_counts;
    QBasicTimer m_timer;
};
