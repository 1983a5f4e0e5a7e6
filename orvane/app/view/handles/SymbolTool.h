#pragma once

#include "orvane/app/view/ViewTool.h"
#include "orvane/app/view/handles/SceneSymbols.h"

#include "meridane/gl/geometry/PictureProjection.h"

#include <QObject>
#include <QPointF>

#include <cstdint>
#include <unordered_set>
#include <vector>

class SceneTreePanel;
class SceneView;

/// Symbols of lights and cameras in the view, of the same size at any distance. A click picks the one that it is on,
/// before anything of the scene. A selected camera shows its view volume, a selected light its direction.
///
/// They are never part of pictures that are exported.
class SymbolTool : public QObject, public ViewTool {
    Q_OBJECT

public:
    /// View and tree live as long as this. The view owns it.
    SymbolTool(SceneView* view, SceneTreePanel* tree);

    void setShown(bool shown);
    [[nodiscard]] bool isShown() const noexcept { return m_isShown; }

    [[nodiscard]] std::optional<NxRayHit> hitAt(const QPointF& position) const override;
    [[nodiscard]] std::vector<std::vector<NxNode*>> nodesIn(const QRectF& rectangle) const override;
    void paint(QPainter& painter) const override;

private:
    /// A symbol in the picture.
    struct Shown {
        const SceneSymbol* symbol;
        QPointF place;
        VbVec3d point;
    };

    void select();
    void follow() const;
    [[nodiscard]] meridane::PictureProjection projection() const;
    [[nodiscard]] std::vector<Shown> layout() const;

    SceneView* m_view;
    SceneTreePanel* m_tree;
    std::unordered_set<const NxFieldContainer*> m_selected; // lights and cameras
    bool m_isShown = true;
    mutable std::vector<SceneSymbol> m_symbols; // of the scene as it was drawn last
    mutable std::uint64_t m_structure = 0;
    mutable const NxGroup* m_scene = nullptr;
};
