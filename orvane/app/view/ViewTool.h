#pragma once

#include "meridane/gl/NxRayPick.h"

#include <optional>
#include <vector>

class NxNode;
class QKeyEvent;
class QMouseEvent;
class QPainter;
class QPointF;
class QRectF;

/// A gesture in the view, such as a rectangle, a handle or a measurement.
///
/// The view asks its tools before it navigates or picks, the latest added tool first. Positions are those of the view.
/// A tool that takes a press has the mouse: it gets all moves, presses and keys until that button is released, and the
/// view neither navigates nor opens a menu meanwhile.
class ViewTool {
public:
    ViewTool() = default;
    virtual ~ViewTool() = default;
    ViewTool(const ViewTool&) = delete;
    ViewTool& operator=(const ViewTool&) = delete;

    /// Returns true to take the mouse. While the tool has it, another button was pressed and the result has no meaning.
    virtual bool mousePress(const QMouseEvent& event);
    /// With the mouse: part of the drag. Without it no button is pressed; true keeps the move from the other tools.
    virtual bool mouseMove(const QMouseEvent& event);
    /// The button that took the mouse was released.
    virtual void mouseRelease(const QMouseEvent& event);
    /// A click of the left button that isn't a drag, on what the view would pick. Returns true to take it.
    virtual bool click(const QPointF& position);
    /// The drag ends without its release: the scene is closed, or another widget got the release.
    virtual void cancel();
    /// The pointer, with no button pressed, has left the view, or is on what another tool or the view takes.
    virtual void leave();

    /// Whether the key is for this tool although it is the shortcut of an action.
    [[nodiscard]] virtual bool wantsKey(const QKeyEvent& event) const;
    /// False for a key that means nothing to the tool.
    virtual bool keyPress(const QKeyEvent& event);

    /// What the tool shows at a position that a click picks before anything of the scene.
    [[nodiscard]] virtual std::optional<NxRayHit> hitAt(const QPointF& position) const;
    /// What the tool shows in a rectangle, or partly in it, each as the path of nodes from the scene to it.
    [[nodiscard]] virtual std::vector<std::vector<NxNode*>> nodesIn(const QRectF& rectangle) const;
    /// Paints over the picture, in points of the screen. Called with each paint; `QWidget::update` requests one.
    virtual void paint(QPainter& painter) const;
};
