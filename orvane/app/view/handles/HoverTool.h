#pragma once

#include "orvane/app/view/ViewTool.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <QObject>
#include <QPointF>
#include <QTimer>

#include <vector>

class SceneView;

/// Outlines what a click would pick while the pointer is on it.
///
/// It looks when the pointer has rested for a moment, and not in scenes in which looking or drawing would be felt: one
/// look that takes longer than `mostMilliseconds` ends it until another scene is shown.
class HoverTool : public QObject, public ViewTool {
    Q_OBJECT

public:
    /// The longest time that a look or a picture may take at first.
    static constexpr int defaultMostMilliseconds = 40;

    /// The view owns it.
    explicit HoverTool(SceneView* view);

    void setMostMilliseconds(int most) noexcept { m_most = most; }

    /// Whether the pointer rests on something at which it has not looked yet.
    [[nodiscard]] bool isResting() const { return m_timer.isActive(); }

    bool mousePress(const QMouseEvent& event) override;
    bool mouseMove(const QMouseEvent& event) override;
    void leave() override;

private:
    void look();
    void show(const std::vector<NxNode*>& path);

    SceneView* m_view;
    QTimer m_timer;
    QPointF m_place;
    std::vector<NxRef<NxNode>> m_path; // what is outlined
    int m_most = defaultMostMilliseconds;
    bool m_isTooSlow = false; // in this scene
};
