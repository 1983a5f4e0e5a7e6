#pragma once

#include "orvane/app/view/ViewTool.h"
#include "orvane/app/view/handles/HandleDrag.h"
#include "orvane/app/view/handles/HandleNumbers.h"
#include "orvane/app/view/handles/HandleTargets.h"

#include <QObject>
#include <QPointF>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

class NxField;
class OrvServices;
class SceneView;

namespace meridane {
class ChangeRecord;
}

/// Handles in the view that move, turn or scale the selected nodes by dragging.
///
/// A drag writes the fields of the nodes with each move of the pointer, as editors do, and is one step of the history.
/// Ctrl snaps, numbers can be typed, and Escape or the right button put the nodes back.
class HandleTool : public QObject, public ViewTool {
    Q_OBJECT

public:
    using Kind = meridane::PlacementChange::Kind;

    /// View, tree and services live as long as this. The view owns it.
    HandleTool(SceneView* view, SceneTreePanel* tree, OrvServices& services);

    /// Shows handles of that kind; nothing for none. Ends a drag.
    void setKind(std::optional<Kind> kind);
    [[nodiscard]] std::optional<Kind> kind() const noexcept { return m_kind; }
    void setAxes(HandleAxes axes);
    [[nodiscard]] HandleAxes axes() const noexcept { return m_axes; }
    [[nodiscard]] const HandleTargets& targets() const noexcept { return m_targets; }

    bool mousePress(const QMouseEvent& event) override;
    bool mouseMove(const QMouseEvent& event) override;
    void mouseRelease(const QMouseEvent& event) override;
    void cancel() override;
    void leave() override;
    [[nodiscard]] bool wantsKey(const QKeyEvent& event) const override;
    bool keyPress(const QKeyEvent& event) override;
    void paint(QPainter& painter) const override;

Q_SIGNALS:
    /// Other nodes are selected, or other handles are shown.
    void changed();
    /// A drag can't be begun, for a reason that the user should read.
    void refused(const QString& reason);

private:
    [[nodiscard]] meridane::PictureProjection projection() const;
    [[nodiscard]] std::optional<HandleShape> shape() const;
    [[nodiscard]] QString label() const;
    [[nodiscard]] QString numberText() const;
    void select();
    [[nodiscard]] bool hasIgnoredField();
    void begin(HandlePart part, const QPointF& place);
    void apply(const meridane::PlacementChange& change);
    void applyTyped();
    void restore();
    void end();

    SceneView* m_view;
    OrvServices& m_services;
    HandleTargets m_targets;
    std::optional<Kind> m_kind;
    HandleAxes m_axes = HandleAxes::World;
    HandlePart m_hovered = HandlePart::None;
    std::optional<HandleDrag> m_drag; // nothing before and after one, also while the button is still pressed
    std::vector<meridane::NodePlacement> m_placements; // of the drag
    std::vector<std::unique_ptr<meridane::ChangeRecord>> m_before;
    HandleNumbers m_typed;
    QPointF m_place; // of the pointer
};
