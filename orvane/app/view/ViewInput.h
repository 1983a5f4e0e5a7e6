#pragma once

#include <QPointF>
#include <QtCore/qnamespace.h>

#include <functional>
#include <vector>

class QContextMenuEvent;
class QKeyEvent;
class QMouseEvent;
class QPainter;
class QWheelEvent;
class SceneView;
class ViewNavigation;
class ViewTool;

/// What mouse and keys do in a view: its tools get the events first, then a drag moves the viewpoint, and a click
/// picks.
class ViewInput {
public:
    /// View and navigation outlive this. `moved` is called when the navigation has changed the viewpoint.
    ViewInput(SceneView& view, ViewNavigation& navigation, std::function<void()> moved);

    /// Adds a tool, which is asked before those that were added earlier. It lives as long as
    /// the view, as a child of it does, or is removed before.
    void addTool(ViewTool* tool);
    void removeTool(ViewTool* tool);

    /// Ends the drag under way without a result.
    void cancel();
    void mousePress(const QMouseEvent& event);
    void mouseMove(const QMouseEvent& event);
    void mouseRelease(const QMouseEvent& event);
    void leave();
    void wheel(const QWheelEvent& event);
    /// Whether the key is no shortcut now, but goes to `keyPress`.
    [[nodiscard]] bool overridesShortcut(const QKeyEvent& event) const;
    /// False for a key that means nothing here.
    bool keyPress(const QKeyEvent& event);
    void contextMenu(const QContextMenuEvent& event);
    void paint(QPainter& painter) const;

private:
    [[nodiscard]] bool isDragging() const;
    [[nodiscard]] bool giveToTools(const QMouseEvent& event);
    void leaveTools(const ViewTool* but);
    void pick(const QPointF& position);

    SceneView& m_view;
    ViewNavigation& m_navigation;
    std::function<void()> m_moved;
    std::vector<ViewTool*> m_tools; // the latest first
    ViewTool* m_taker = nullptr; // has the mouse
    QPointF m_pressed;
    Qt::MouseButton m_button = Qt::NoButton; // of the drag under way
    bool m_isMoving = false; // rather than clicking
    bool m_withoutMenu = false; // the latest press was for a tool
};
