#pragma once

#include "orvane/app/view/ViewColors.h"
#include "orvane/app/view/ViewDrawing.h"
#include "orvane/app/view/ViewInput.h"
#include "orvane/app/view/ViewNavigation.h"
#include "orvane/app/view/ViewPictures.h"

#include "meridane/gl/NxRayPick.h"
#include "meridane/gl/geometry/NxViewpoint.h"
#include "meridane/gl/painting/NxDrawingStyle.h"

#include <QImage>
#include <QWidget>

#include <optional>
#include <vector>

class NxGroup;
class NxNode;
class QLabel;

/// The picture of the scene, in which the user moves about and picks nodes.
///
/// A picture is drawn when something in it has changed, and only when it is painted. The drawing is set up behind the
/// first paint, so that the window needn't wait for it. As long as the user hasn't moved, all of the scene is in view,
/// whatever the size. Where there is no drawing, a message gives the reason.
class SceneView : public QWidget {
    Q_OBJECT

public:
    explicit SceneView(QWidget* parent = nullptr);
    ~SceneView() override;

    /// Sets the drawing up now, for a picture that is taken at once.
    void start();
    [[nodiscard]] ViewDrawing& drawing() noexcept { return m_drawing; }
    [[nodiscard]] const ViewDrawing& drawing() const noexcept { return m_drawing; }
    /// How its pictures are made, with how much detail.
    [[nodiscard]] ViewPictures& pictures() noexcept { return m_pictures; }

    /// What is seen now, as it was drawn last; null before the scene was drawn.
    [[nodiscard]] QImage picture() const { return m_isSceneDrawn ? m_picture : QImage(); }

    /// What mouse and keys do here; for tools to be added to.
    [[nodiscard]] ViewInput& input() noexcept { return m_input; }
    /// Where positions of the view are in the picture.
    [[nodiscard]] const ViewNavigation& navigation() const noexcept { return m_navigation; }
    [[nodiscard]] ViewNavigation& navigation() noexcept { return m_navigation; }

    /// The scene that is shown, or null.
    [[nodiscard]] NxGroup* scene() const noexcept { return m_scene.get(); }
    /// Shows a scene, whose texture files count from the folder; null for none. Without a viewpoint all is in view.
    void setScene(NxGroup* scene, const QString& folder, const std::optional<NxViewpoint>& viewpoint = {});
    /// Outlines the last of these nodes, each a child of the one before; none for nothing.
    void setSelectedPath(const std::vector<NxNode*>& nodes);

    [[nodiscard]] const NxViewpoint& viewpoint() const noexcept { return m_viewpoint; }
    /// Looks from there; as a move by the user.
    void setViewpoint(const NxViewpoint& viewpoint);
    /// The same as part of a movement that the user makes.
    void navigate(const NxViewpoint& viewpoint);
    /// Looks from there as the user has asked for: see `jumped`.
    void goTo(const NxViewpoint& viewpoint);
    /// Shows a step on the way to where the view has jumped.
    void showStep(const NxViewpoint& viewpoint);
    /// Whether the user has left the viewpoint that shows all.
    [[nodiscard]] bool hasMoved() const noexcept { return m_hasMoved; }
    /// What of the scene is seen there, or nothing.
    [[nodiscard]] std::optional<NxRayHit> hitAt(const QPointF& position) const;
    /// The node that is outlined; null for none.
    [[nodiscard]] const NxNode* selectedNode() const { return m_selected.empty() ? nullptr : m_selected.back().get(); }
    /// The box around the selected node; empty if it has no extent.
    [[nodiscard]] NxBounds selectionBounds() const { return m_drawing.bounds(pointers(m_selected)); }
    /// The same with what lies behind it, from the front.
    [[nodiscard]] std::vector<NxRayHit> hitsAt(const QPointF& position) const;
    /// Lets the next click pick what is in front, even on the place of the latest one.
    void forgetClick() { m_input.forgetClick(); }
    /// Outlines more quietly what a click would select; none for nothing.
    void setHoveredPath(const std::vector<NxNode*>& nodes) { m_drawing.setHoveredPath(nodes); }
    void frameAll();
    /// Frames the selected node, or the nearest node above it that has an extent; the whole scene when nothing is
    /// selected.
    void frameSelection();
    void lookAlong(const VbVec3f& direction, const VbVec3f& up);
    /// Looks as at first: in perspective, from the right, from above and from the front.
    void lookFromCorner();
    void setProjection(NxViewpoint::Projection projection);

    /// How the scene is shown; the colours are the view's own.
    [[nodiscard]] const NxDrawingStyle& style() const noexcept { return m_style; }
    void setStyle(const NxDrawingStyle& style);
    void setBackground(orvane::ViewBackground background);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user clicked on a mesh.
    void picked(const NxRayHit& hit);
    /// The user clicked on nothing.
    void pickedNothing();
    /// The user wants a menu at that place of the screen, about what is selected. A click has picked what it is on.
    void menuRequested(const QPoint& place);
    /// Another scene is about to be shown, or none.
    void sceneAboutToChange();
    /// Another scene is shown, or none.
    void sceneChanged();
    /// The user moved, or is about to, not through `setViewpoint`.
    void moved();
    /// The viewpoint has changed at once from that one, which an animation may hide.
    void jumped(const NxViewpoint& before);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override { m_input.mousePress(*event); }
    void mouseMoveEvent(QMouseEvent* event) override { m_input.mouseMove(*event); }
    void mouseReleaseEvent(QMouseEvent* event) override { m_input.mouseRelease(*event); }
    void wheelEvent(QWheelEvent* event) override { m_input.wheel(*event); }
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override { m_input.contextMenu(*event); }
    void leaveEvent(QEvent* event) override;
    bool event(QEvent* event) override;
    /// Tab picks what lies behind the node that was clicked, as long as the pointer is there.
    bool focusNextPrevChild(bool next) override;

private:
    [[nodiscard]] ViewInput::Hooks inputHooks();
    [[nodiscard]] static std::vector<NxNode*> pointers(const std::vector<NxRef<NxNode>>& nodes);
    /// Nothing without a scene, and where the section plane leaves nothing.
    [[nodiscard]] std::optional<NxRayPick> pickAt(const QPointF& position) const;
    void redraw(const QSize& deviceSize);
    void showAll();
    void frameIfAsked();
    void redrawLater();
    void noteMove();
    void showProblem();

    NxViewpoint m_viewpoint;
    ViewNavigation m_navigation;
    ViewInput m_input;
    NxDrawingStyle m_style;
    orvane::ViewBackground m_background = orvane::ViewBackground::AsWindow;
    ViewDrawing m_drawing;
    ViewPictures m_pictures{m_drawing};
    NxRef<NxGroup> m_scene;
    std::vector<NxRef<NxNode>> m_selected;
    QImage m_picture;
    QSize m_drawnSize; // in device pixels
    QLabel* m_message = nullptr;
    bool m_stale = true;
    bool m_isSceneDrawn = false; // in the picture
    bool m_startQueued = false;
    bool m_hasMoved = false;
    bool m_showsAll = true; // whatever the size, until the user moves
    bool m_framesAll = true; // with the next picture
};
