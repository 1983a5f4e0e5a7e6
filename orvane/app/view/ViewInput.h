#pragma once

#include "meridane/gl/NxRayPick.h"

#include <QPoint>
#include <QPointF>
#include <QtCore/qnamespace.h>

#include <functional>
#include <optional>
#include <vector>

class NxNode;
class QContextMenuEvent;
class QKeyEvent;
class QMouseEvent;
class QPainter;
class QRectF;
class QWheelEvent;
class QWidget;
class ViewNavigation;
class ViewTool;

/// What mouse and keys do in a view: its tools get the events first, then a drag moves the viewpoint, and a click
/// picks.
class ViewInput {
public:
    /// What the view does for its input.
    struct Hooks {
        std::function<bool()> hasScene;
        /// What of the scene is seen at a position.
        std::function<std::optional<NxRayHit>(const QPointF& position)> hitAt;
        /// The same with what lies behind it, from the front.
        std::function<std::vector<NxRayHit>(const QPointF& position)> hitsAt;
        /// The navigation has changed the viewpoint.
        std::function<void()> moved;
        /// The user has clicked on something, or on nothing.
        std::function<void(const std::optional<NxRayHit>& hit)> picked;
        /// The user wants a menu at that place of the screen.
        std::function<void(const QPoint& place)> menuRequested;
    };

    /// View and navigation outlive this.
    ViewInput(QWidget& view, ViewNavigation& navigation, Hooks hooks);

    /// Adds a tool, which is asked before those that were added earlier. It lives as long as
    /// the view, as a child of it does, or is removed before.
    void addTool(ViewTool* tool);
    void removeTool(ViewTool* tool);

    /// What is at that position: what a tool shows there, else what is seen of the scene.
    [[nodiscard]] std::optional<NxRayHit> hitAt(const QPointF& position) const;
    /// What the tools show in a rectangle of the view, each as the path of nodes from the scene to it.
    [[nodiscard]] std::vector<std::vector<NxNode*>> nodesOfToolsIn(const QRectF& rectangle) const;
    /// What a click there would pick: what is there, or, where the latest click was, what lies behind.
    [[nodiscard]] std::optional<NxRayHit> nextHit(const QPointF& position) const;
    /// Picks what lies behind the node that the latest click has picked, or before it, as long as the pointer is there.
    /// Returns false, and does nothing, if nothing else is there.
    bool pickBehind(bool forwards);
    /// Picks what is in the middle of the view; the next time, what lies behind it.
    void pickMiddle();
    /// Shows where the middle is, for people who work by keys.
    void setMiddleShown(bool isShown) { m_showsMiddle = isShown; }
    /// Lets the next click pick what is in front, wherever it is: what the latest click has picked may no longer be
    /// there or selected.
    void forgetClick() { m_depth = -1; }

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
    /// Picks what is at that position and asks for its menu, at that place of the screen.
    void openMenu(const QPointF& position, const QPoint& place);
    /// The viewpoint has changed: what is behind the latest click is something else now.
    void noteMove() { m_depth = -1; }
    void paint(QPainter& painter) const;

private:
    [[nodiscard]] bool isDragging() const;
    [[nodiscard]] bool giveToTools(const QMouseEvent& event);
    void leaveTools(const ViewTool* but);
    [[nodiscard]] bool isClickedPlace(const QPointF& position) const;
    [[nodiscard]] std::optional<NxRayHit> hitAt(const QPointF& position, int depth) const;
    void paintMiddle(QPainter& painter) const;
    void click(const QMouseEvent& event);
    void pick(const QPointF& position, int depth);

    QWidget& m_view;
    ViewNavigation& m_navigation;
    Hooks m_hooks;
    std::vector<ViewTool*> m_tools; // the latest first
    ViewTool* m_taker = nullptr; // has the mouse
    QPointF m_pressed;
    QPointF m_pointer;
    QPointF m_clicked; // where the latest click was
    int m_depth = -1; // how many hits that click has left out; -1 before the first click, and after a move
    Qt::MouseButton m_button = Qt::NoButton; // of the drag under way
    bool m_isMoving = false; // rather than clicking
    bool m_showsMiddle = false;
    bool m_withoutMenu = false; // the latest press was for a tool
};
