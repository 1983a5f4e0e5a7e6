#pragma once

#include "orvane/app/view/ViewTool.h"

#include <QObject>
#include <QPointF>
#include <QRectF>

#include <vector>

class NxNode;
class SceneView;

/// The rectangle that the user draws with Shift held to select what is seen in it; with Ctrl too, to take that out of
/// the selection. A click with Shift is about a single node.
class ViewRectangle : public QObject, public ViewTool {
    Q_OBJECT

public:
    enum class Change { Add, TakeAway };
    Q_ENUM(Change)

    /// Becomes a tool and a child of the view.
    explicit ViewRectangle(SceneView* view);

    bool mousePress(const QMouseEvent& event) override;
    bool mouseMove(const QMouseEvent& event) override;
    void mouseRelease(const QMouseEvent& event) override;
    void cancel() override;
    [[nodiscard]] bool wantsKey(const QKeyEvent& event) const override;
    bool keyPress(const QKeyEvent& event) override;
    void paint(QPainter& painter) const override;

Q_SIGNALS:
    /// The user has drawn a rectangle. The nodes are the meshes that are seen in it, none behind others, and the lights
    /// and cameras whose symbols it touches; each is given as the path of nodes from the scene to it.
    void drawn(const std::vector<std::vector<NxNode*>>& nodes, ViewRectangle::Change change);
    /// The user has clicked on a node with Shift held.
    void clicked(const std::vector<NxNode*>& node);

private:
    [[nodiscard]] QRectF rectangle() const;
    void end();

    SceneView* m_view;
    QPointF m_start;
    QPointF m_end;
    bool m_isPressed = false;
    bool m_isDrawn = false; // rather than a click
};
