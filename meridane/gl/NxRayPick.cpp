#include "meridane/gl/NxRayPick.h"

#include "meridane/gl/detail/MeshHit.h"
#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/places/ShownChildren.h"
#include "meridane/scene/fields/EffectiveField.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <span>

using namespace meridane;

namespace {

// Shared groups inside each other may have more instances than could ever be visited.
constexpr std::size_t maxPlaces = 20'000'000;

/// A group on the present path, and its next child to visit.
struct Step {
    std::span<NxNode* const> children;
    std::size_t next = 0;
    Matrix4d matrix; // from the children to the ray
    NxNodeVisibility::State state; // of the group
    MeshHit::Sides sides = MeshHit::Sides::Both; // of the triangles that follow
};

bool isFinite(const Matrix4d& matrix)
{
    for (std::size_t i = 0; i < 16; ++i) {
        if (!std::isfinite(static_cast<float>(matrix[i / 4][i % 4])))
            return false;
    }
    return true;
}

// Takes the ray to the z axis, from the origin: every point on it has x and y of 0.
Matrix4d sceneToRay(const NxRay& ray)
{
    const VbVec3f ahead = normalized(ray.direction, VbVec3f(0, 0, -1));
    const VbVec3f across = std::abs(ahead[0]) < 0.6F ? VbVec3f(1, 0, 0) : VbVec3f(0, 1, 0);
    const VbVec3f x = normalized(cross(across, ahead), VbVec3f(1, 0, 0));
    const VbVec3f y = cross(ahead, x);
    const VbMatrix turned(x[0], y[0], ahead[0], 0, x[1], y[1], ahead[1], 0, x[2], y[2], ahead[2], 0, 0, 0, 0, 1);
    return multiply(translationMatrix(scaled(ray.origin, -1.0)), turned);
}

// But for the point.
NxRayHit hitOf(const MeshHit& search, const std::vector<Step>& steps)
{
    NxRayHit hit{
        {}, VbVec3d(), static_cast<float>(search.distance()), search.primitive(), search.vertex(), search.corner()};
    for (const Step& above : steps)
        hit.path.push_back(above.children[above.next - 1]);
    return hit;
}

} // namespace

NxRayPick::NxRayPick(const NxRay& ray)
    : m_ray(ray)
    , m_farthest(std::numeric_limits<float>::max())
{
}

void NxRayPick::setTolerance(float radius, float slope) noexcept
{
    m_radius = radius;
    m_slope = slope;
}

void NxRayPick::setDistances(float nearest, float farthest) noexcept
{
    m_nearest = nearest;
    m_farthest = farthest;
}

// Calls `visit` with each mesh that is shown, the matrix to the ray, its sides, and the steps that lead to it.
template <typename Visit>
void NxRayPick::visitMeshes(const NxNode& root, Visit visit) const
{
    // Without recursion: a scene may be too deep for the stack.
    std::vector<Step> steps{{shownChildrenOf(root), 0, multiply(localTransformOf(root), sceneToRay(m_ray)),
        m_visibility.below({}, root), MeshHit::Sides::Both}};
    for (std::size_t places = 0; !steps.empty() && places < maxPlaces; ++places) {
        Step& step = steps.back();
        if (step.next == step.children.size()) {
            steps.pop_back();
            continue;
        }
        const NxNode& node = *step.children[step.next++];
        const NxNodeVisibility::State state = m_visibility.below(step.state, node);
        const std::span<NxNode* const> children = shownChildrenOf(node);
        if (const auto* mesh = dynamic_cast<const NxMesh*>(&node)) {
            if (m_visibility.shows(state))
                visit(*mesh, step.matrix, step.sides, steps);
        } else if (const auto* material = dynamic_cast<const NxMaterial*>(&node)) {
            const bool areBoth = effectiveField(material->doubleSided).getValue() != 0;
            step.sides = areBoth ? MeshHit::Sides::Both : MeshHit::Sides::Front;
        } else if (!children.empty() && !state.isHidden) {
            const Matrix4d matrix = multiply(localTransformOf(node), step.matrix);
            if (isFinite(matrix))
                steps.push_back({children, 0, matrix, state, step.sides});
        }
    }
}

VbVec3d NxRayPick::pointAt(double distance) const
{
    const VbVec3d ahead = normalized(m_ray.direction, VbVec3f(0, 0, -1));
    return add(m_ray.origin, scaled(ahead, distance));
}

std::optional<NxRayHit> NxRayPick::pick(const NxNode& root) const
{
    MeshHit search(m_radius, m_slope, m_nearest, m_farthest);
    std::optional<NxRayHit> hit;
    visitMeshes(root, [&](const NxMesh& mesh, const Matrix4d& matrix, MeshHit::Sides sides, const auto& steps) {
        if (search.meet(mesh, matrix, sides))
            hit = hitOf(search, steps);
    });
    if (hit)
        hit->point = pointAt(search.distance());
    return hit;
}

std::vector<NxRayHit> NxRayPick::pickAll(const NxNode& root, std::size_t most) const
{
    std::vector<NxRayHit> hits;
    visitMeshes(root, [&](const NxMesh& mesh, const Matrix4d& matrix, MeshHit::Sides sides, const auto& steps) {
        MeshHit search(m_radius, m_slope, m_nearest, m_farthest);
        if (!search.meet(mesh, matrix, sides))
            return;
        const double distance = search.distance();
        const auto place = std::upper_bound(hits.begin(), hits.end(), static_cast<float>(distance),
            [](float wanted, const NxRayHit& other) { return wanted < other.distance; });
        if (place == hits.end() && hits.size() >= most)
            return;
        hits.insert(place, hitOf(search, steps))->point = pointAt(distance);
        if (hits.size() > most)
            hits.pop_back();
    });
    return hits;
}
