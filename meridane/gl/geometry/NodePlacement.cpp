#include "meridane/gl/geometry/NodePlacement.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/scene/nodes/NxCamera.h"
#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace meridane {
namespace {

const std::array<VbVec3d, 3> unitAxes{VbVec3d(1, 0, 0), VbVec3d(0, 1, 0), VbVec3d(0, 0, 1)};

/// The sine of half the angle times the axis, and the cosine.
struct Quaternion {
    VbVec3d axis;
    double cosine = 1;
};

Quaternion quaternionOf(const VbVec3d& axis, double angle)
{
    return {scaled(normalized(axis, VbVec3d()), std::sin(angle / 2)), std::cos(angle / 2)};
}

Quaternion product(const Quaternion& first, const Quaternion& second)
{
    // The first turn is the right factor.
    const VbVec3d across = cross(second.axis, first.axis);
    return {add(across, add(scaled(first.axis, second.cosine), scaled(second.axis, first.cosine))),
        first.cosine * second.cosine - dot(first.axis, second.axis)};
}

/// Turns further. Of the two axes that mean the same, the result has the one nearer to the present one.
VbRotation turned(const VbRotation& rotation, const VbVec3d& axis, double angle)
{
    const VbVec3d present(rotation.getAxis());
    const Quaternion whole
        = product(quaternionOf(present, length(present) > 0 ? static_cast<double>(rotation.getAngle()) : 0),
            quaternionOf(axis, angle));
    const double sine = length(whole.axis);
    if (!(sine > 1e-12))
        return {rotation.getAxis(), 0};
    const double side = dot(whole.axis, present) < 0 ? -1 : 1;
    double radians = 2 * std::atan2(side * sine, whole.cosine);
    if (radians > std::numbers::pi)
        radians -= 2 * std::numbers::pi;
    if (radians < -std::numbers::pi)
        radians += 2 * std::numbers::pi;
    return {narrowed(scaled(whole.axis, side / sine)), static_cast<float>(radians)};
}

bool isFinite(const VbMatrix& matrix)
{
    for (std::size_t row = 0; row < 4; ++row) {
        if (!std::all_of(matrix[row].begin(), matrix[row].end(), [](float part) { return std::isfinite(part); }))
            return false;
    }
    return true;
}

std::array<VbVec3d, 3> axesOf(const Matrix4d& matrix)
{
    std::array<VbVec3d, 3> axes;
    for (std::size_t i = 0; i < 3; ++i)
        axes[i] = normalized(VbVec3d(matrix[i][0], matrix[i][1], matrix[i][2]), unitAxes[i]);
    return axes;
}

/// The axes of something that looks along a direction, as a camera does along negative z.
Matrix4d matrixLookingAlong(const VbVec3d& direction)
{
    const VbVec3d back = normalized(scaled(direction, -1), unitAxes[2]);
    const VbVec3d up = std::abs(back[1]) < 0.9 ? unitAxes[1] : unitAxes[2];
    const VbVec3d right = normalized(cross(up, back), unitAxes[0]);
    const std::array<VbVec3d, 3> rows{right, cross(back, right), back};
    Matrix4d matrix;
    for (std::size_t row = 0; row < 3; ++row)
        std::copy_n(rows[row].getValue(), 3, matrix[row].begin());
    return matrix;
}

template <typename Field, typename Value>
void set(Field* field, const Value& value)
{
    if (field != nullptr && !(field->getValue() == value))
        field->setValue(value);
}

} // namespace

NodePlacement::Fields::Fields(NxNode& node)
{
    if (auto* transform = dynamic_cast<NxTransform*>(&node); transform != nullptr) {
        place = &transform->translation;
        rotation = &transform->rotation;
        scale = &transform->scaleFactor;
        if (!transform->center.isIgnored())
            center = VbVec3d(transform->center.getValue());
    } else if (auto* matrixTransform = dynamic_cast<NxMatrixTransform*>(&node); matrixTransform != nullptr) {
        matrix = &matrixTransform->matrix;
    } else if (auto* camera = dynamic_cast<NxCamera*>(&node); camera != nullptr) {
        place = &camera->position;
        rotation = &camera->orientation;
    } else if (auto* point = dynamic_cast<NxPointLight*>(&node); point != nullptr) {
        place = &point->location;
    } else if (auto* spot = dynamic_cast<NxSpotLight*>(&node); spot != nullptr) {
        place = &spot->location;
        direction = &spot->direction;
    } else if (auto* sun = dynamic_cast<NxDirectionalLight*>(&node); sun != nullptr) {
        direction = &sun->direction;
    }
}

bool NodePlacement::can(const NxNode& node, PlacementChange::Kind kind)
{
    // Looking at which fields there are changes nothing.
    const Fields fields(const_cast<NxNode&>(node));
    switch (kind) {
    case PlacementChange::Kind::Move:
        return fields.place != nullptr || fields.matrix != nullptr;
    case PlacementChange::Kind::Turn:
        return fields.rotation != nullptr || fields.direction != nullptr || fields.matrix != nullptr;
    case PlacementChange::Kind::Scale:
        return fields.scale != nullptr || fields.matrix != nullptr;
    }
    return false;
}

std::vector<NxField*> NodePlacement::fields(NxNode& node, PlacementChange::Kind kind)
{
    const Fields fields(node);
    std::vector<NxField*> result{fields.place, fields.matrix};
    if (kind == PlacementChange::Kind::Turn)
        result.insert(result.end(), {fields.rotation, fields.direction});
    else if (kind == PlacementChange::Kind::Scale)
        result.push_back(fields.scale);
    std::erase(result, nullptr);
    return result;
}

NodePlacement::NodePlacement(NxNode& node, const Matrix4d& parentToScene)
    : m_node(&node)
    , m_fields(node)
    , m_parentToScene(parentToScene)
{
    if (m_fields.place != nullptr)
        m_start.place = m_fields.place->getValue();
    if (m_fields.rotation != nullptr)
        m_start.rotation = m_fields.rotation->getValue();
    if (m_fields.scale != nullptr)
        m_start.scale = m_fields.scale->getValue();
    if (m_fields.direction != nullptr)
        m_start.direction = m_fields.direction->getValue();
    if (m_fields.matrix != nullptr)
        m_start.matrix = m_fields.matrix->getValue();
}

VbVec3d NodePlacement::pivot() const
{
    VbVec3d place = m_fields.center;
    if (m_fields.place != nullptr && !m_fields.place->isIgnored())
        place = add(place, VbVec3d(m_fields.place->getValue()));
    if (m_fields.matrix != nullptr)
        place = transformPoint(place, localTransformOf(*m_node));
    return transformPoint(place, m_parentToScene);
}

std::array<VbVec3d, 3> NodePlacement::ownAxes() const
{
    Matrix4d own = localTransformOf(*m_node);
    if (m_fields.direction != nullptr)
        own = matrixLookingAlong(VbVec3d(m_fields.direction->getValue()));
    else if (m_fields.rotation != nullptr && m_fields.scale == nullptr)
        own = Matrix4d(rotationMatrix(m_fields.rotation->getValue()));
    return axesOf(multiply(own, m_parentToScene));
}

std::array<VbVec3d, 3> NodePlacement::parentAxes() const
{
    return axesOf(m_parentToScene);
}

NodePlacement::Values NodePlacement::changed(const PlacementChange& change, const Matrix4d& sceneToParent) const
{
    Values values = m_start;
    if (m_fields.matrix != nullptr) {
        const Matrix4d own(m_start.matrix);
        Matrix4d result = multiply(
            multiply(multiply(own, m_parentToScene), change.linear()), sceneToParent); // but for the translation
        const VbVec3d from = transformPoint(VbVec3d(own[3][0], own[3][1], own[3][2]), m_parentToScene);
        const VbVec3d way = transformVector(subtract(change.applied(from), from), sceneToParent);
        for (std::size_t i = 0; i < 3; ++i)
            result[3][i] = own[3][i] + way[i];
        for (std::size_t row = 0; row < 4; ++row)
            result[row][3] = own[row][3];
        values.matrix = narrowed(result);
        return values;
    }
    // From what the point moves by, so that one that stays has exactly the value that it had.
    const VbVec3d from = transformPoint(add(m_fields.center, VbVec3d(m_start.place)), m_parentToScene);
    const VbVec3d way = transformVector(subtract(change.applied(from), from), sceneToParent);
    values.place = narrowed(add(VbVec3d(m_start.place), way));
    if (change.kind == PlacementChange::Kind::Turn && change.angle != 0) {
        const VbVec3d axis = normalized(transformVector(change.axis, sceneToParent), change.axis);
        const double angle = determinant(m_parentToScene) < 0 ? -change.angle : change.angle;
        values.rotation = turned(m_start.rotation, axis, angle);
        values.direction = narrowed(transformVector(VbVec3d(m_start.direction), turnMatrix(axis, angle)));
    } else if (change.kind == PlacementChange::Kind::Scale) {
        for (std::size_t i = 0; i < 3; ++i)
            values.scale[i] = static_cast<float>(static_cast<double>(m_start.scale[i]) * change.factors[i]);
    }
    return values;
}

bool NodePlacement::apply(const PlacementChange& change)
{
    const std::optional<Matrix4d> sceneToParent = inverse(m_parentToScene);
    if (!sceneToParent)
        return false;
    const Values values = changed(change, *sceneToParent);
    if (!meridane::isFinite(values.place) || !meridane::isFinite(values.scale) || !meridane::isFinite(values.direction)
        || !isFinite(values.matrix) || !meridane::isFinite(values.rotation.getAxis())
        || !std::isfinite(values.rotation.getAngle()))
        return false;
    write(values);
    return true;
}

void NodePlacement::restore()
{
    write(m_start);
}

void NodePlacement::write(const Values& values)
{
    set(m_fields.place, values.place);
    set(m_fields.rotation, values.rotation);
    set(m_fields.scale, values.scale);
    set(m_fields.direction, values.direction);
    set(m_fields.matrix, values.matrix);
}

} // namespace meridane
