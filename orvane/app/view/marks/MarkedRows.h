#pragma once

#include "orvane/app/view/marks/MarkedPointsJob.h"

#include "meridane/scene/fields/NxFieldSensor.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>
#include <vector>

class ListPanel;
class NxMField;
class NxNode;
class SceneTreePanel;
class SceneView;
struct NxRayHit;

/// Ties the rows of a list of a mesh to its vertices in the view: the vertices of the selected rows are marked while
/// the list is in sight, and a click on the mesh selects the row of the nearest vertex.
///
/// Marks are those of the instance of the mesh that was selected last in the tree. They follow the values.
class MarkedRows : public QObject {
    Q_OBJECT

public:
    /// The view is the parent; the tree lives as long.
    MarkedRows(SceneView* view, SceneTreePanel* tree);
    ~MarkedRows() override;

    /// Follows the list that is shown in a panel, from now on.
    void follow(ListPanel* panel);
    /// Selects and shows the row of a vertex, if the list is one of that mesh.
    void showVertex(const NxRayHit& hit);
    /// Whether the marks are those of the present rows and values.
    [[nodiscard]] bool isFresh() const noexcept { return m_isFresh && m_job == nullptr; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void outdate();
    void followPath();
    void watchMesh();
    void update();
    void show(std::vector<VbVec3f> points);
    [[nodiscard]] NxMesh* mesh() const;
    /// What the rows of the list are of; nothing for a list that isn't one of a mesh.
    [[nodiscard]] std::optional<MarkedPointsJob::Rows> rows() const;

    SceneView* m_view;
    SceneTreePanel* m_tree;
    ListPanel* m_panel = nullptr;
    std::vector<NxRef<NxNode>> m_path; // to the mesh
    NxFieldSensor m_positions;
    NxFieldSensor m_indices;
    std::unique_ptr<MarkedPointsJob> m_job;
    QTimer m_timer;
    bool m_isFresh = true; // nothing has changed since the job began
    bool m_hasMarks = false;
};
