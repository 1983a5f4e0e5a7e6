#pragma once

#include "orvane/app/view/ViewTool.h"

#include "meridane/base/values/VbVec.h"

#include <QObject>
#include <QStringList>

#include <optional>
#include <vector>

class QAction;
class SceneView;
class Session;

/// Measures in the view: a click sets a point, on the vertex that it is near or on the surface. Two points have a
/// distance, a third one an angle at the second, and the next click begins again. The extent of the selection is shown
/// too. Escape ends it.
class MeasureTool : public QObject, public ViewTool {
    Q_OBJECT

public:
    /// The view is the parent; the session outlives it.
    MeasureTool(SceneView* view, Session& session);
    ~MeasureTool() override;

    /// Begins and ends measuring.
    [[nodiscard]] QAction* action() const noexcept { return m_action; }
    [[nodiscard]] const std::vector<VbVec3d>& points() const noexcept { return m_points; }
    /// The results, as they are shown in the view.
    [[nodiscard]] QStringList lines() const;

    bool click(const QPointF& position) override;
    bool mouseMove(const QMouseEvent& event) override;
    bool keyPress(const QKeyEvent& event) override;
    void paint(QPainter& painter) const override;

private:
    [[nodiscard]] std::optional<VbVec3d> pointAt(const QPointF& position) const;
    [[nodiscard]] QStringList selectionLines() const;

    SceneView* m_view;
    QAction* m_action;
    std::vector<VbVec3d> m_points;
};
