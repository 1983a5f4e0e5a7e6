#pragma once

#include "meridane/base/values/VbVec.h"
#include "meridane/gl/geometry/Matrix4d.h"

#include <array>
#include <cstddef>
#include <span>
#include <vector>

class NxMesh;

namespace meridane {

/// The nearest place where a line meets one of several meshes. The line runs along z from the origin, so that each test
/// is one in the plane of x and y, and also holds for meshes that a transform has made flat.
class MeshHit {
public:
    /// As for NxRayPick.
    MeshHit(float radius, float slope, float nearest, float farthest);

    /// Whether the line meets the mesh, which that matrix brings to the line, ahead of all earlier ones.
    [[nodiscard]] bool meet(const NxMesh& mesh, const Matrix4d& meshToLine);

    [[nodiscard]] double distance() const noexcept { return m_distance; }
    [[nodiscard]] int primitive() const noexcept { return m_primitive; }

private:
    struct Point {
        double x = 0;
        double y = 0;
        double z = 0;
    };

    void place(std::span<const VbVec3f> positions, const Matrix4d& matrix);
    template <std::size_t Corners, typename Test>
    bool meetEach(std::span<const int> indices, Test test);
    bool meetTriangle(const std::array<const Point*, 3>& corners);
    bool meetLine(const std::array<const Point*, 2>& ends);
    bool meetPoint(const std::array<const Point*, 1>& points);
    bool meetNearby(const Point& point);
    [[nodiscard]] double radiusAt(double distance) const;
    bool take(double distance, double rank);

    double m_radius;
    double m_slope;
    double m_nearest;
    double m_rank; // the distance, less for what is thin, so that lines on a surface are met ahead of it
    double m_distance = 0;
    int m_primitive = 0;
    std::vector<Point> m_points; // those of the mesh at hand
};

} // namespace meridane
