#include "orvane/app/view/handles/SceneSymbols.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/places/ShownChildren.h"
#include "meridane/scene/nodes/NxCamera.h"
#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/nodes/NxLight.h"

#include <span>

namespace {

constexpr std::size_t mostVisited = 1'000'000;

/// A group on the present path, and its next child to visit.
struct Visit {
    std::span<NxNode* const> children;
    std::size_t next = 0;
};

} // namespace

meridane::NodePlacement SceneSymbol::placement() const
{
    meridane::Matrix4d parentToScene;
    for (std::size_t i = 0; i + 1 < path.size(); ++i)
        parentToScene = meridane::multiply(meridane::localTransformOf(*path[i]), parentToScene);
    return {node(), parentToScene};
}

std::vector<SceneSymbol> orvane::symbolsOf(const NxGroup& scene)
{
    std::vector<SceneSymbol> symbols;
    // Without recursion: a scene may be too deep for the stack.
    std::vector<Visit> visits{{meridane::shownChildrenOf(scene)}};
    for (std::size_t visited = 0; !visits.empty() && visited < mostVisited && symbols.size() < mostSymbols; ++visited) {
        Visit& visit = visits.back();
        if (visit.next == visit.children.size()) {
            visits.pop_back();
            continue;
        }
        NxNode* const node = visit.children[visit.next++];
        const std::span<NxNode* const> children = meridane::shownChildrenOf(*node);
        if (!children.empty()) {
            visits.push_back({children});
        } else if (dynamic_cast<const NxLight*>(node) != nullptr || dynamic_cast<const NxCamera*>(node) != nullptr) {
            SceneSymbol symbol;
            for (const Visit& above : visits)
                symbol.path.emplace_back(above.children[above.next - 1]);
            symbols.push_back(std::move(symbol));
        }
    }
    return symbols;
}
