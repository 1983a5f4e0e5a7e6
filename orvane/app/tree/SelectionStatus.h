#pragma once

#include "meridane/scene/file/NxScenePathNamer.h"

#include <QBasicTimer>
#include <QObject>

#include <optional>
#include <vector>

class NxGroup;
class QLabel;
class QStatusBar;
class SceneTreePanel;
class SelectionLabel;
class Session;

/// Shows in the status bar the path of the selection and the number of nodes below it.
class SelectionStatus : public QObject {
    Q_OBJECT

public:
    SelectionStatus(Session& session, SceneTreePanel* tree, QStatusBar* bar);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void updateSoon();
    void showCounts(NxNode& node);
    [[nodiscard]] std::optional<std::vector<int>> places(const NxGroup& scene) const;

    Session& m_session;
    SceneTreePanel* m_tree;
    SelectionLabel* m_path;
    QLabel* m_counts;
    NxScenePathNamer m_namer;
    QBasicTimer m_timer;
};
