#include "orvane/app/view/handles/SymbolTool.h"

#include "orvane/app/tree/HiddenNodes.h"
#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/handles/SymbolPainter.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/scene/nodes/NxCamera.h"
#include "meridane/scene/nodes/NxLight.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace meridane;

SymbolTool::SymbolTool(SceneView* view, SceneTreePanel* tree)
    : QObject(view)
    , m_view(view)
    , m_tree(tree)
{
    connect(tree, &SceneTreePanel::selectionChanged, this, &SymbolTool::select);
    connect(view, &SceneView::sceneChanged, this, [this] {
        m_symbols.clear(); // it holds the nodes
        m_scene = nullptr;
    });
    view->input().addTool(this);
}

void SymbolTool::setShown(bool shown)
{
    m_isShown = shown;
    m_view->update();
}

void SymbolTool::select()
{
    m_selected.clear();
    if (const auto nodes = m_tree->selection().nodes(); nodes != nullptr) {
        for (const NxRef<NxFieldContainer>& node : *nodes) {
            if (dynamic_cast<const NxLight*>(node.get()) != nullptr
                || dynamic_cast<const NxCamera*>(node.get()) != nullptr)
                m_selected.insert(node.get());
        }
    }
    m_view->update();
}

// The way through the scene is made when nodes have come, gone, or been hidden, not with each picture.
void SymbolTool::follow() const
{
    const NxGroup* const scene = m_view->scene();
    const std::uint64_t structure = m_view->drawing().structure();
    if (scene == m_scene && structure == m_structure)
        return;
    m_scene = scene;
    m_structure = structure;
    m_symbols = scene != nullptr ? orvane::symbolsOf(*scene) : std::vector<SceneSymbol>();
    std::erase_if(m_symbols, [this](const SceneSymbol& symbol) {
        std::vector<NxNode*> path;
        for (const NxRef<NxNode>& node : symbol.path)
            path.push_back(node.get());
        return !m_tree->hidden().isShown(path);
    });
}

PictureProjection SymbolTool::projection() const
{
    return {m_view->viewpoint(), static_cast<double>(m_view->width()), static_cast<double>(m_view->height())};
}

std::vector<SymbolTool::Shown> SymbolTool::layout() const
{
    std::vector<Shown> shown;
    if (!m_isShown)
        return shown;
    follow();
    const PictureProjection picture = projection();
    const double radius = orvane::symbolRadius;
    const QRectF area = QRectF(m_view->rect()).adjusted(-radius, -radius, radius, radius);
    for (const SceneSymbol& symbol : m_symbols) {
        const VbVec3d point = orvane::symbolPoint(symbol.placement(), picture);
        const auto place = picture.placeOf(point);
        if (!place || !area.contains(QPointF((*place)[0], (*place)[1])))
            continue;
        Shown next{&symbol, {(*place)[0], (*place)[1]}, point};
        // Those in the same place are side by side, so that each can be seen and picked.
        const auto covers = [&](const Shown& other) { return (other.place - next.place).manhattanLength() < radius; };
        while (std::any_of(shown.begin(), shown.end(), covers))
            next.place.rx() += 2 * radius + 2;
        shown.push_back(next);
    }
    return shown;
}

std::optional<NxRayHit> SymbolTool::hitAt(const QPointF& position) const
{
    const std::vector<Shown> shown = layout();
    // The one painted last is in front.
    for (std::size_t i = shown.size(); i-- > 0;) {
        const QPointF way = shown[i].place - position;
        if (std::hypot(way.x(), way.y()) > orvane::symbolRadius + 1)
            continue;
        NxRayHit hit;
        for (const NxRef<NxNode>& node : shown[i].symbol->path)
            hit.path.push_back(node.get());
        hit.point = shown[i].point;
        hit.distance = static_cast<float>(length(subtract(hit.point, m_view->viewpoint().usablePosition())));
        return hit;
    }
    return {};
}

std::vector<std::vector<NxNode*>> SymbolTool::nodesIn(const QRectF& rectangle) const
{
    std::vector<std::vector<NxNode*>> paths;
    for (const Shown& one : layout()) {
        const QPointF nearest(std::clamp(one.place.x(), rectangle.left(), rectangle.right()),
            std::clamp(one.place.y(), rectangle.top(), rectangle.bottom()));
        const QPointF way = one.place - nearest;
        if (std::hypot(way.x(), way.y()) > orvane::symbolRadius)
            continue;
        std::vector<NxNode*>& path = paths.emplace_back();
        for (const NxRef<NxNode>& node : one.symbol->path)
            path.push_back(node.get());
    }
    return paths;
}

void SymbolTool::paint(QPainter& painter) const
{
    const VbColor& outline = m_view->style().outlineColor;
    const QColor color = QColor::fromRgbF(outline[0], outline[1], outline[2]);
    const std::vector<Shown> shown = layout();
    const auto aspect = static_cast<double>(m_view->navigation().aspect());
    for (const SceneSymbol& symbol : m_symbols) {
        if (m_isShown && m_selected.contains(&symbol.node()))
            orvane::paintReach(painter, symbol.placement(), projection(), aspect, color);
    }
    for (const Shown& one : shown)
        orvane::paintSymbol(
            painter, one.symbol->node(), one.place, color, m_selected.contains(&one.symbol->node()), m_view->palette());
}
