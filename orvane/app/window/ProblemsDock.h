#pragma once

#include "meridane/scene/check/NxSceneProblem.h"

#include <QDockWidget>

class ImageFolderQuestion;
class JobBar;
class LiveCheck;
class NxField;
class ProblemPanel;
class QMainWindow;
class SceneTreePanel;
class Session;

/// The dock with the problems of the open scene. It is hidden until the user shows it; the scene is only checked while
/// it isn't.
class ProblemsDock : public QDockWidget {
    Q_OBJECT

public:
    /// All live as long as the window.
    ProblemsDock(
        Session& session, ImageFolderQuestion& folders, JobBar& jobBar, SceneTreePanel* tree, QMainWindow* window);

    void setVisible(bool visible) override;

    /// The content; null before the dock is first shown.
    [[nodiscard]] ProblemPanel* panel() const noexcept { return m_panel; }

Q_SIGNALS:
    /// The user chose a problem of a row of a list, whose field is selected.
    void rowChosen(NxField* list, int row);

private:
    void fill();
    void select(const NxSceneProblem& problem);
    void updateTitle();

    Session& m_session;
    JobBar& m_jobBar;
    SceneTreePanel* m_tree;
    QMainWindow* m_window;
    LiveCheck* m_check;
    ProblemPanel* m_panel = nullptr; // made when it is first shown
};
