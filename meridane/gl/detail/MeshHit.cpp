#include "meridane/gl/detail/MeshHit.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace meridane {

namespace {

double toDouble(float value)
{
    return static_cast<double>(value);
}

} // namespace

MeshHit::MeshHit(float radius, float slope, float nearest, float farthest)
    : m_radius(toDouble(radius))
    , m_slope(toDouble(slope))
    , m_nearest(toDouble(nearest))
    , m_rank(toDouble(farthest))
{
}

bool MeshHit::meet(const NxMesh& mesh, const Matrix4d& meshToLine, Sides sides)
{
    m_front = sides == Sides::Both ? 0 : determinant(meshToLine) < 0 ? -1 : 1;
    if (mesh.positions.isIgnored())
        return false;
    place(mesh.positions.getValues(), meshToLine);
    const auto indices = mesh.indices.isIgnored() ? std::span<const int>() : mesh.indices.getValues();
    switch (mesh.primitive.isIgnored() ? int{NxMesh::TRIANGLES} : mesh.primitive.getValue()) {
    case NxMesh::LINES:
        return meetEach<2>(indices, &MeshHit::meetLine);
    case NxMesh::POINTS:
        return meetEach<1>(indices, &MeshHit::meetPoint);
    default:
        return meetEach<3>(indices, &MeshHit::meetTriangle);
    }
}

void MeshHit::place(std::span<const VbVec3f> positions, const Matrix4d& m)
{
    const bool isAffine = m[0][3] == 0.0 && m[1][3] == 0.0 && m[2][3] == 0.0 && m[3][3] == 1.0;
    m_points.resize(positions.size());
    Point* point = m_points.data();
    for (const VbVec3f& position : positions) {
        const double x = toDouble(position[0]);
        const double y = toDouble(position[1]);
        const double z = toDouble(position[2]);
        point->x = x * m[0][0] + y * m[1][0] + z * m[2][0] + m[3][0];
        point->y = x * m[0][1] + y * m[1][1] + z * m[2][1] + m[3][1];
        point->z = x * m[0][2] + y * m[1][2] + z * m[2][2] + m[3][2];
        if (!isAffine) {
            const double w = x * m[0][3] + y * m[1][3] + z * m[2][3] + m[3][3];
            *point = {point->x / w, point->y / w, point->z / w};
        }
        ++point;
    }
}

template <std::size_t Corners, typename Test>
bool MeshHit::meetEach(std::span<const int> indices, Test test)
{
    const std::size_t count = (indices.empty() ? m_points.size() : indices.size()) / Corners;
    bool met = false;
    for (std::size_t primitive = 0; primitive < count; ++primitive) {
        std::array<const Point*, Corners> corners{};
        bool exists = true;
        for (std::size_t corner = 0; corner < Corners; ++corner) {
            const std::size_t place = primitive * Corners + corner;
            // A negative index becomes a very large one.
            const std::size_t index = indices.empty() ? place : static_cast<std::size_t>(indices[place]);
            exists = exists && index < m_points.size();
            corners[corner] = exists ? &m_points[index] : nullptr;
        }
        if (exists && (this->*test)(corners)) {
            m_primitive = static_cast<int>(primitive);
            findVertex(corners, primitive * Corners);
            met = true;
        }
    }
    return met;
}

void MeshHit::findVertex(std::span<const Point* const> corners, std::size_t firstCorner)
{
    double nearest = std::numeric_limits<double>::infinity();
    for (std::size_t corner = 0; corner < corners.size(); ++corner) {
        const Point& point = *corners[corner];
        const double depth = point.z - m_distance;
        const double square = point.x * point.x + point.y * point.y + depth * depth;
        if (corner > 0 && !(square < nearest))
            continue;
        nearest = square;
        m_corner = static_cast<int>(firstCorner + corner);
        m_vertex = static_cast<int>(&point - m_points.data());
    }
}

bool MeshHit::meetTriangle(const std::array<const Point*, 3>& corners)
{
    const Point& a = *corners[0];
    const Point& b = *corners[1];
    const Point& c = *corners[2];
    // The side of each edge on which the line passes. If a corner isn't finite, one of them is NaN.
    const double u = c.x * b.y - c.y * b.x;
    const double v = a.x * c.y - a.y * c.x;
    const double w = b.x * a.y - b.y * a.x;
    if (!((u >= 0 && v >= 0 && w >= 0) || (u <= 0 && v <= 0 && w <= 0)))
        return false;
    const double sum = u + v + w;
    if (sum == 0.0 || sum * m_front < 0)
        return false;
    const double distance = (u * a.z + v * b.z + w * c.z) / sum;
    return take(distance, distance);
}

double MeshHit::radiusAt(double distance) const
{
    return m_radius + m_slope * distance;
}

bool MeshHit::meetLine(const std::array<const Point*, 2>& ends)
{
    Point a = *ends[0];
    Point b = *ends[1];
    // Objects behind the viewer aren't near the line of sight.
    const double least = std::max(radiusAt(a.z), radiusAt(b.z)) * 1e-9;
    if (!(least > 0.0))
        return false;
    const auto cut = [&](Point& end, const Point& other) {
        const double radius = radiusAt(end.z);
        if (radius >= least)
            return;
        const double share = (least - radius) / (radiusAt(other.z) - radius);
        end = {end.x + share * (other.x - end.x), end.y + share * (other.y - end.y), end.z + share * (other.z - end.z)};
    };
    cut(a, b);
    cut(b, a);
    // In units of the radius, as in the picture, a line remains straight; only the points along it move.
    const double radiusA = std::max(radiusAt(a.z), least);
    const double radiusB = std::max(radiusAt(b.z), least);
    const double x = b.x / radiusB - a.x / radiusA;
    const double y = b.y / radiusB - a.y / radiusA;
    const double square = x * x + y * y;
    const double inPicture = square > 0.0 ? std::clamp(-(a.x * x + a.y * y) / (radiusA * square), 0.0, 1.0) : 0.0;
    const double share = inPicture * radiusA / ((1.0 - inPicture) * radiusB + inPicture * radiusA);
    return meetNearby({a.x + share * (b.x - a.x), a.y + share * (b.y - a.y), a.z + share * (b.z - a.z)});
}

bool MeshHit::meetPoint(const std::array<const Point*, 1>& points)
{
    return meetNearby(*points[0]);
}

bool MeshHit::meetNearby(const Point& point)
{
    const double radius = radiusAt(point.z);
    if (!(point.x * point.x + point.y * point.y < radius * radius) || !(radius > 0.0))
        return false;
    return take(point.z, point.z - 2 * radius);
}

bool MeshHit::take(double distance, double rank)
{
    // Also false for NaN.
    if (!(distance >= m_nearest && rank < m_rank))
        return false;
    m_distance = distance;
    m_rank = rank;
    return true;
}

} // namespace meridane
