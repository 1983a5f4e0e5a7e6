#pragma once

#include "meridane/base/values/VbVec.h"
#include "meridane/gl/geometry/Matrix4d.h"

#include <array>
#include <cstddef>
#include <span>
#include <vector>

class NxMesh;

namespace meridane {

/// The nearest hit of a line on several meshes. The line runs along z from the origin, so that each test is made in the
/// plane of x and y, and also works for meshes that a transform has made flat.
class MeshHit {
public:
    /// See `NxRayPick`.
    MeshHit(float radius, float slope, float nearest, float farthest);

    /// Which sides of triangles can be hit.
    enum class Sides { Both, Front };
    /// Whether the line hits the mesh before all meshes that were tested earlier. The matrix takes the mesh to the
    /// line.
    [[nodiscard]] bool meet(const NxMesh& mesh, const Matrix4d& meshToLine, Sides sides = Sides::Both);

    [[nodiscard]] double distance() const noexcept { return m_distance; }
    [[nodiscard]] int primitive() const noexcept { return m_primitive; }
    /// The position of the primitive that is nearest to the hit, and the place of its index.
    [[nodiscard]] int vertex() const noexcept { return m_vertex; }
    [[nodiscard]] int corner() const noexcept { return m_corner; }

private:
    struct Point {
        double x = 0;
        double y = 0;
        double z = 0;
    };

    void place(std::span<const VbVec3f> positions, const Matrix4d& matrix);
    template <std::size_t Corners, typename Test>
    bool meetEach(std::span<const int> indices, Test test);
    void findVertex(std::span<const Point* const> corners, std::size_t firstCorner);
    bool meetTriangle(const std::array<const Point*, 3>& corners);
    bool meetLine(const std::array<const Point*, 2>& ends);
    bool meetPoint(const std::array<const Point*, 1>& points);
    bool meetNearby(const Point& point);
    [[nodiscard]] double radiusAt(double distance) const;
    bool take(double distance, double rank);

    double m_radius;
    double m_slope;
    double m_nearest;
    double m_rank; // the distance, reduced for lines and points, so that those on a surface are hit before it
    double m_distance = 0;
    double m_front = 0; // 1 or -1: the sign of the sides of edges of triangles that are hit; 0 for both
    int m_primitive = 0;
    int m_vertex = 0;
    int m_corner = 0;
    std::vector<Point> m_points; // of the present mesh
};

} // namespace meridane
