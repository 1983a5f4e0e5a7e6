#pragma once

#include "meridane/scene/compare/NxSceneDifference.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QDockWidget>

class DifferencePanel;
class JobBar;
class MessageBar;
class QMainWindow;
class SceneComparer;
class SceneTreePanel;
class SelectionLink;
class Session;

/// The dock with the differences between the open scene and a file. The choice of a row selects its node and field.
class ComparisonDock : public QDockWidget {
    Q_OBJECT

public:
    /// All live as long as the window.
    ComparisonDock(Session& session, MessageBar& messages, JobBar& jobBar, SceneTreePanel* tree, SelectionLink& link,
        QMainWindow* window);

    /// Compares the open scene with another, which the user knows as the file of that name, and shows the dock. Doesn't
    /// block.
    void compare(const NxRef<NxGroup>& other, const QString& fileName);
    [[nodiscard]] SceneComparer* comparer() const noexcept { return m_comparer; }

private:
    void select(const NxSceneDifference& difference);
    void reveal();

    Session& m_session;
    SceneTreePanel* m_tree;
    SelectionLink& m_link;
    QMainWindow* m_window;
    DifferencePanel* m_panel;
    SceneComparer* m_comparer;
    bool m_placed = false;
};
