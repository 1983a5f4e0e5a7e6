#include "meridane/gl/geometry/NxViewpoint.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/scene/nodes/NxOrthographicCamera.h"
#include "meridane/scene/nodes/NxPerspectiveCamera.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

using namespace meridane;

namespace {

constexpr float smallestAngle = 0.001F;
constexpr float largestAngle = 3.1F;
// The product of two such lengths is within the range of floats.
constexpr float shortest = 1e-15F;
constexpr float longest = 1e15F;
// Around a framed box, as a factor.
constexpr double margin = 1.1;

const VbVec3f xAxis(1, 0, 0);
const VbVec3f yAxis(0, 1, 0);
const VbVec3f zAxis(0, 0, 1);

float sensibleLength(float value, float otherwise)
{
    return value > 0 && std::isfinite(value) ? std::clamp(value, shortest, longest) : otherwise;
}

bool isSensible(const VbRotation& rotation)
{
    const std::array<float, 4> quaternion = rotation.getQuaternion();
    return std::all_of(quaternion.begin(), quaternion.end(), [](float part) { return std::isfinite(part); });
}

// The rotation whose matrix has these rows, which are of length 1 and at right angles.
VbRotation rotationOf(const VbVec3f& right, const VbVec3f& up, const VbVec3f& back)
{
    const std::array<VbVec3f, 3> rows{right, up, back};
    std::array<float, 4> quaternion{};
    const float trace = rows[0][0] + rows[1][1] + rows[2][2];
    if (trace > 0) {
        quaternion = {rows[1][2] - rows[2][1], rows[2][0] - rows[0][2], rows[0][1] - rows[1][0], 1 + trace};
    } else {
        // The largest part first: the others follow from it without loss.
        std::size_t i = rows[1][1] > rows[0][0] ? 1 : 0;
        if (rows[2][2] > rows[i][i])
            i = 2;
        const std::size_t j = (i + 1) % 3;
        const std::size_t k = (i + 2) % 3;
        quaternion[i] = 1 + rows[i][i] - rows[j][j] - rows[k][k];
        quaternion[j] = rows[i][j] + rows[j][i];
        quaternion[k] = rows[i][k] + rows[k][i];
        quaternion[3] = rows[j][k] - rows[k][j];
    }
    return VbRotation().setValue(quaternion.data());
}

float heightOf(float heightAngle, float distance)
{
    return 2 * distance * std::tan(heightAngle / 2);
}

} // namespace

NxViewpoint NxViewpoint::ofCamera(const NxCamera& camera, const Matrix4d& cameraToScene)
{
    const auto* orthographic = dynamic_cast<const NxOrthographicCamera*>(&camera);
    const auto* perspective = dynamic_cast<const NxPerspectiveCamera*>(&camera);
    NxViewpoint own;
    own.position = VbVec3d(camera.position.isIgnored() ? zAxis : camera.position.getValue());
    if (!camera.orientation.isIgnored())
        own.orientation = camera.orientation.getValue();
    own = own.sensible();

    NxViewpoint result;
    const VbVec3f up = transformDirection(own.upAxis(), cameraToScene);
    result.position = transformPoint(own.position, cameraToScene);
    result.turn(transformDirection(own.viewDirection(), cameraToScene), up);
    if (perspective != nullptr && !perspective->heightAngle.isIgnored())
        result.heightAngle = perspective->heightAngle.getValue();
    if (orthographic != nullptr) {
        constexpr float defaultHeight = 2;
        const float height = orthographic->height.isIgnored() ? defaultHeight : orthographic->height.getValue();
        result.projection = ORTHOGRAPHIC;
        result.height = height * static_cast<float>(length(up));
    }
    return result.sensible();
}

NxViewpoint NxViewpoint::sensible() const
{
    const NxViewpoint normal;
    NxViewpoint result = *this;
    if (!isFinite(position))
        result.position = normal.position;
    if (!isSensible(orientation))
        result.orientation = normal.orientation;
    result.heightAngle = heightAngle > 0 && heightAngle < std::numbers::pi_v<float>
        ? std::clamp(heightAngle, smallestAngle, largestAngle)
        : normal.heightAngle;
    result.height = sensibleLength(height, normal.height);
    result.focalDistance = sensibleLength(focalDistance, normal.focalDistance);
    return result;
}

VbMatrix NxViewpoint::viewRotation() const
{
    VbMatrix turned = rotationMatrix(sensible().orientation);
    // The inverse of a rotation is its transpose.
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = row + 1; column < 3; ++column)
            std::swap(turned[row][column], turned[column][row]);
    }
    return turned;
}

VbMatrix NxViewpoint::projectionMatrix(float aspect, float nearDistance, float farDistance) const
{
    const NxViewpoint eye = sensible();
    const VbVec2f part = partSize();
    const float ratio = sensibleLength(aspect, 1) * part[1] / part[0];
    const float depth = farDistance - nearDistance;
    VbMatrix matrix;
    if (projection == ORTHOGRAPHIC) {
        matrix[1][1] = 2 / eye.height;
        matrix[2][2] = -2 / depth;
        matrix[3][2] = -(farDistance + nearDistance) / depth;
    } else {
        matrix[1][1] = 1 / std::tan(eye.heightAngle / 2);
        matrix[2][2] = -(farDistance + nearDistance) / depth;
        matrix[2][3] = -1;
        matrix[3][2] = -2 * farDistance * nearDistance / depth;
        matrix[3][3] = 0;
    }
    matrix[0][0] = matrix[1][1] / ratio;
    if (part == VbVec2f(1, 1))
        return matrix;
    // From the place of the part in clip space to all of it; divided by the fourth coordinate, the shift is constant.
    for (std::size_t i = 0; i < 2; ++i) {
        const float shift = (1 - partMin[i] - partMax[i]) / part[i];
        for (std::size_t row = 0; row < 4; ++row)
            matrix[row][i] = matrix[row][i] / part[i] + shift * matrix[row][3];
    }
    return matrix;
}

VbVec2f NxViewpoint::partSize() const
{
    const auto size = [this](std::size_t i) {
        const float share = partMax[i] - partMin[i];
        return share > 0 && share <= 1 ? share : 1.0F;
    };
    return {size(0), size(1)};
}

VbVec3f NxViewpoint::rightAxis() const
{
    return normalized(transformDirection(xAxis, rotationMatrix(sensible().orientation)), xAxis);
}

VbVec3f NxViewpoint::upAxis() const
{
    return normalized(transformDirection(yAxis, rotationMatrix(sensible().orientation)), yAxis);
}

VbVec3f NxViewpoint::viewDirection() const
{
    const VbVec3f ahead(0, 0, -1);
    return normalized(transformDirection(ahead, rotationMatrix(sensible().orientation)), ahead);
}

VbVec3d NxViewpoint::focalPoint() const
{
    const NxViewpoint eye = sensible();
    return add(eye.position, scaled(VbVec3d(viewDirection()), static_cast<double>(eye.focalDistance)));
}

float NxViewpoint::heightAt(float distance) const
{
    const NxViewpoint eye = sensible();
    return projection == ORTHOGRAPHIC ? eye.height : heightOf(eye.heightAngle, distance);
}

VbVec3d NxViewpoint::pointAt(const VbVec2f& place, float aspect, float distance) const
{
    const NxViewpoint eye = sensible();
    const auto tall = static_cast<double>(heightAt(distance));
    const double wide = tall * static_cast<double>(sensibleLength(aspect, 1));
    const VbVec3d ahead = add(eye.position, scaled(VbVec3d(viewDirection()), static_cast<double>(distance)));
    const VbVec3d across = scaled(VbVec3d(rightAxis()), (static_cast<double>(place[0]) - 0.5) * wide);
    return add(ahead, add(across, scaled(VbVec3d(upAxis()), (static_cast<double>(place[1]) - 0.5) * tall)));
}

NxRay NxViewpoint::rayAt(const VbVec2f& place, float aspect) const
{
    if (projection == ORTHOGRAPHIC)
        return {pointAt(place, aspect, 0), viewDirection()};
    NxViewpoint atOrigin = sensible();
    const VbVec3d origin = atOrigin.position;
    atOrigin.position = VbVec3d();
    return {origin, normalized(narrowed(atOrigin.pointAt(place, aspect, 1)), viewDirection())};
}

float NxViewpoint::distanceTo(const VbVec3d& point) const
{
    return static_cast<float>(dot(subtract(point, usablePosition()), VbVec3d(viewDirection())));
}

void NxViewpoint::turn(const VbVec3f& direction, const VbVec3f& up)
{
    const VbVec3f back = scaled(normalized(direction, VbVec3f(0, 0, -1)), -1.0);
    // Straight up or down, any direction across the view is suitable.
    const VbVec3f other = std::abs(back[1]) < 0.9F ? yAxis : VbVec3f(0, 0, back[1] > 0 ? -1.0F : 1.0F);
    VbVec3f right = cross(normalized(up, other), back);
    if (!(length(right) > 1e-4))
        right = cross(other, back);
    right = normalized(right, xAxis);
    orientation = rotationOf(right, cross(back, right), back);
}

void NxViewpoint::placeAhead(const VbVec3d& point)
{
    position = subtract(point, scaled(VbVec3d(viewDirection()), static_cast<double>(focalDistance)));
}

void NxViewpoint::turnBy(float right, float up)
{
    const bool headDown = upAxis()[1] < -0.001F;
    // To move above the focal point, the view turns downwards.
    float pitch = -up;
    if (!headDown) {
        constexpr float straight = std::numbers::pi_v<float> / 2;
        const float present = std::asin(std::clamp(viewDirection()[1], -1.0F, 1.0F));
        pitch = std::clamp(present + pitch, -straight, straight) - present;
    }
    const VbMatrix turned = multiply(multiply(rotationMatrix(VbRotation(xAxis, pitch)), rotationMatrix(orientation)),
        rotationMatrix(VbRotation(yAxis, headDown ? -right : right)));
    const VbVec3f newRight = transformDirection(xAxis, turned);
    const VbVec3f back = normalized(transformDirection(zAxis, turned), zAxis);
    const VbVec3f across = normalized(newRight, xAxis);
    orientation = rotationOf(across, cross(back, across), back);
}

void NxViewpoint::orbit(float right, float up)
{
    if (!std::isfinite(right) || !std::isfinite(up))
        return;
    *this = sensible();
    const VbVec3d pivot = focalPoint();
    turnBy(right, up);
    placeAhead(pivot);
}

void NxViewpoint::orbit(float right, float up, const VbVec3d& pivot)
{
    if (!std::isfinite(right) || !std::isfinite(up) || !isFinite(pivot))
        return;
    *this = sensible();
    // In the axes of the viewpoint the pivot is where it was.
    const VbVec3d way = subtract(pivot, position);
    const double across = dot(way, VbVec3d(rightAxis()));
    const double upwards = dot(way, VbVec3d(upAxis()));
    const double ahead = dot(way, VbVec3d(viewDirection()));
    turnBy(right, up);
    position = subtract(pivot,
        add(scaled(VbVec3d(rightAxis()), across),
            add(scaled(VbVec3d(upAxis()), upwards), scaled(VbVec3d(viewDirection()), ahead))));
}

void NxViewpoint::pan(const VbVec2f& from, const VbVec2f& to, float aspect, float distance)
{
    const VbVec3d way = subtract(pointAt(from, aspect, distance), pointAt(to, aspect, distance));
    if (isFinite(way))
        position = add(sensible().position, way);
}

void NxViewpoint::zoom(float factor, const VbVec3d& point)
{
    if (!(factor > 0) || !std::isfinite(factor) || !isFinite(point))
        return;
    *this = sensible();
    float& size = projection == ORTHOGRAPHIC ? height : focalDistance;
    const float newSize = std::clamp(size / factor, shortest, longest);
    const double share = 1.0 - static_cast<double>(newSize) / static_cast<double>(size);
    const VbVec3d ahead = viewDirection();
    VbVec3d way = subtract(point, position);
    if (projection == ORTHOGRAPHIC)
        way = subtract(way, scaled(ahead, dot(way, ahead)));
    position = add(position, scaled(way, share));
    size = newSize;
}

void NxViewpoint::frame(const VbVec3f& min, const VbVec3f& max, float aspect)
{
    const VbVec3d center = add(scaled(VbVec3d(min), 0.5), scaled(VbVec3d(max), 0.5));
    const VbVec3f half = narrowed(subtract(VbVec3d(max), center));
    if (!isFinite(center)) // else the half is finite too
        return;
    *this = sensible();
    const auto ratio = static_cast<double>(sensibleLength(aspect, 1));
    const double slope = std::tan(static_cast<double>(heightAngle) / 2);
    double halfHeight = 0;
    double distance = 0;
    for (unsigned corner = 0; corner < 8; ++corner) {
        VbVec3f way = half;
        for (std::size_t i = 0; i < 3; ++i)
            way[i] *= (corner >> i & 1U) != 0 ? 1.0F : -1.0F;
        const double needed = std::max(std::abs(dot(way, upAxis())), std::abs(dot(way, rightAxis())) / ratio);
        halfHeight = std::max(halfHeight, needed);
        distance = std::max(distance, needed / slope - dot(way, viewDirection()));
    }
    height = sensibleLength(static_cast<float>(2 * margin * halfHeight), height);
    // As far away as a perspective would be, so that nothing of the box is behind the viewer, not even a line that is
    // seen from its end.
    focalDistance = sensibleLength(static_cast<float>(margin * distance), focalDistance);
    placeAhead(center);
}

void NxViewpoint::lookAlong(const VbVec3f& direction, const VbVec3f& up)
{
    *this = sensible();
    const VbVec3d pivot = focalPoint();
    turn(direction, up);
    placeAhead(pivot);
}

void NxViewpoint::setProjection(Projection newProjection)
{
    *this = sensible();
    if (newProjection == projection)
        return;
    const VbVec3d pivot = focalPoint();
    if (newProjection == ORTHOGRAPHIC)
        height = sensibleLength(heightOf(heightAngle, focalDistance), height);
    else
        focalDistance = sensibleLength(focalDistance * height / heightOf(heightAngle, focalDistance), focalDistance);
    projection = newProjection;
    placeAhead(pivot);
}

void NxViewpoint::focus(const VbVec3d& point)
{
    const float distance = distanceTo(point);
    if (distance > shortest && std::isfinite(distance))
        focalDistance = distance;
}
