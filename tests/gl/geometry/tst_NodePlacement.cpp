#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/NodePlacement.h"
#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxPerspectiveCamera.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QTest>

#include <cmath>
#include <limits>
#include <numbers>
#include <random>

using namespace meridane;

namespace {

/// Random transforms, the same in every run.
class Randoms {
public:
    double number(double least, double most) { return std::uniform_real_distribution<double>(least, most)(m_random); }
    VbVec3d vector(double size) { return {number(-size, size), number(-size, size), number(-size, size)}; }
    VbVec3d axis() { return normalized(vector(1), VbVec3d(0, 1, 0)); }
    VbRotation rotation() { return {narrowed(vector(2)), static_cast<float>(number(-7, 7))}; }
    VbVec3f scale()
    {
        VbVec3f factors;
        for (std::size_t i = 0; i < 3; ++i)
            factors[i] = static_cast<float>(number(0.5, 2) * (number(0, 1) < 0.3 ? -1 : 1));
        return factors;
    }
    /// Turned, scaled the same along all axes, mirrored or not, and moved.
    Matrix4d similarity(double away)
    {
        const double size = number(0.5, 3);
        const double mirrored = number(0, 1) < 0.5 ? -1 : 1;
        Matrix4d matrix = turnMatrix(axis(), number(-3, 3));
        for (std::size_t row = 0; row < 3; ++row) {
            for (std::size_t column = 0; column < 3; ++column)
                matrix[row][column] *= size * (column == 0 ? mirrored : 1);
        }
        return multiply(matrix, translationMatrix(vector(10 + away)));
    }
    /// Sheared as well.
    Matrix4d affine()
    {
        Matrix4d matrix = similarity(0);
        for (std::size_t row = 0; row < 3; ++row) {
            for (std::size_t column = 0; column < 3; ++column)
                matrix[row][column] += number(-0.3, 0.3);
        }
        return matrix;
    }
    NxRef<NxTransform> transform()
    {
        NxRef<NxTransform> node(new NxTransform);
        node->translation.setValue(narrowed(vector(5)));
        node->rotation.setValue(rotation());
        node->scaleFactor.setValue(scale());
        node->center.setValue(narrowed(vector(2)));
        return node;
    }
    NxRef<NxMatrixTransform> matrixTransform()
    {
        NxRef<NxMatrixTransform> node(new NxMatrixTransform);
        node->matrix.setValue(narrowed(affine()));
        return node;
    }
    PlacementChange turn(const VbVec3d& pivot) { return PlacementChange::turn(pivot, axis(), number(-6, 6)); }

private:
    std::mt19937 m_random{4711};
};

constexpr int rounds = 300;

/// The largest distance between where a matrix and a function take some points.
template <typename Where>
double differenceOf(const Matrix4d& matrix, Where where)
{
    double most = 0;
    for (const VbVec3d& point : {VbVec3d(), VbVec3d(1, 0, 0), VbVec3d(0, 1, 0), VbVec3d(0, 0, 1), VbVec3d(1, -2, 3)})
        most = std::max(most, length(subtract(transformPoint(point, matrix), where(point))));
    return most;
}

/// How far the node is from where the change takes it.
double errorOf(const NxNode& node, const Matrix4d& before, const Matrix4d& parent, const PlacementChange& change)
{
    return differenceOf(multiply(localTransformOf(node), parent),
        [&](const VbVec3d& point) { return change.applied(transformPoint(transformPoint(point, before), parent)); });
}

/// The direction in the scene.
VbVec3d direction(const VbVec3f& own, const Matrix4d& parent)
{
    return normalized(transformVector(VbVec3d(own), parent), VbVec3d());
}

} // namespace

/// Moves, turns and scales nodes below random transforms, and compares the scene with what was asked for.
class TestNodePlacement : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aMoveIsExactBelowAnyTransform()
    {
        Randoms random;
        for (int round = 0; round < rounds; ++round) {
            const Matrix4d parent = random.affine();
            const NxRef<NxTransform> transform = random.transform();
            const NxRef<NxMatrixTransform> matrix = random.matrixTransform();
            for (NxNode* node : {static_cast<NxNode*>(transform.get()), static_cast<NxNode*>(matrix.get())}) {
                const Matrix4d before = localTransformOf(*node);
                NodePlacement placement(*node, parent);
                const PlacementChange change = PlacementChange::move(random.vector(4));
                QVERIFY(placement.apply(change));
                QVERIFY(errorOf(*node, before, parent, change) < 1e-4);
            }
        }
    }

    void aTurnIsExactBelowTransformsThatKeepAngles()
    {
        Randoms random;
        for (int round = 0; round < rounds; ++round) {
            const Matrix4d parent = random.similarity(0);
            const NxRef<NxTransform> node = random.transform();
            const Matrix4d before = localTransformOf(*node);
            NodePlacement placement(*node, parent);
            // About its own pivot, and about any other point, as a node of several does.
            const bool isOwn = round % 2 == 0;
            const VbVec3f translation = node->translation.getValue();
            const PlacementChange change = random.turn(isOwn ? placement.pivot() : random.vector(5));
            QVERIFY(placement.apply(change));
            QVERIFY2(errorOf(*node, before, parent, change) < 1e-3, qPrintable(QString::number(round)));
            if (isOwn)
                QCOMPARE(node->translation.getValue(), translation);
        }
    }

    void anyTurnOfAMatrixIsExact()
    {
        Randoms random;
        for (int round = 0; round < rounds; ++round) {
            const Matrix4d parent = random.affine();
            const NxRef<NxMatrixTransform> node = random.matrixTransform();
            const Matrix4d before = localTransformOf(*node);
            NodePlacement placement(*node, parent);
            const PlacementChange change = random.turn(random.vector(5));
            QVERIFY(placement.apply(change));
            if (std::abs(determinant(parent)) > 0.05)
                QVERIFY(errorOf(*node, before, parent, change) < 1e-3);
        }
    }

    void aTurnBelowAShearKeepsTheAxisAndTurnsInTheParent()
    {
        Randoms random;
        for (int round = 0; round < rounds; ++round) {
            const Matrix4d parent = random.affine();
            const NxRef<NxTransform> node = random.transform();
            const Matrix4d before = localTransformOf(*node);
            NodePlacement placement(*node, parent);
            const PlacementChange change = random.turn(placement.pivot());
            QVERIFY(placement.apply(change));
            // What is on the axis stays where it is.
            const VbVec3d onAxis = add(change.pivot, scaled(change.axis, 2));
            const Matrix4d toScene = multiply(before, parent);
            const VbVec3d own = transformPoint(onAxis, *inverse(toScene));
            const VbVec3d after = transformPoint(own, multiply(localTransformOf(*node), parent));
            QVERIFY(length(subtract(after, onAxis)) < 1e-2);
            // In the parent it turns by the angle.
            const VbVec3d axis = normalized(transformVector(change.axis, *inverse(parent)), VbVec3d());
            const Matrix4d turn = turnMatrix(axis, determinant(parent) < 0 ? -change.angle : change.angle);
            for (const VbVec3d& arm : {VbVec3d(1, 0, 0), VbVec3d(0, 1, 0), VbVec3d(0, 0, 1)}) {
                const VbVec3d wanted = transformVector(transformVector(arm, before), turn);
                QVERIFY(length(subtract(transformVector(arm, localTransformOf(*node)), wanted)) < 1e-4);
            }
        }
    }

    void aScaleAlongTheOwnAxesIsExact()
    {
        Randoms random;
        for (int round = 0; round < rounds; ++round) {
            const Matrix4d parent = random.affine();
            const NxRef<NxTransform> node = random.transform();
            const Matrix4d before = localTransformOf(*node);
            NodePlacement placement(*node, parent);
            const PlacementChange change
                = PlacementChange::scale(placement.pivot(), placement.ownAxes(), VbVec3d(random.scale()));
            QVERIFY(placement.apply(change));
            QVERIFY(errorOf(*node, before, parent, change) < 1e-3);
        }
    }

    void aScaleBySameFactorsAndThatOfAMatrixAreExact()
    {
        Randoms random;
        for (int round = 0; round < rounds; ++round) {
            const Matrix4d parent = random.affine();
            const NxRef<NxTransform> transform = random.transform();
            const NxRef<NxMatrixTransform> matrix = random.matrixTransform();
            const double factor = random.number(-2, 2);
            const PlacementChange even = PlacementChange::scale(
                random.vector(5), NodePlacement(*transform, parent).parentAxes(), VbVec3d(factor, factor, factor));
            const Matrix4d before = localTransformOf(*transform);
            QVERIFY(NodePlacement(*transform, parent).apply(even));
            QVERIFY(errorOf(*transform, before, parent, even) < 1e-3);

            const PlacementChange uneven = PlacementChange::scale(
                random.vector(5), NodePlacement(*matrix, parent).parentAxes(), VbVec3d(random.scale()));
            const Matrix4d beforeMatrix = localTransformOf(*matrix);
            QVERIFY(NodePlacement(*matrix, parent).apply(uneven));
            QVERIFY(errorOf(*matrix, beforeMatrix, parent, uneven) < 1e-3);
        }
    }

    void stepsOfADragDontAddUp()
    {
        Randoms random;
        const Matrix4d parent = random.similarity(0);
        const NxRef<NxTransform> node = random.transform();
        const NxRef<NxTransform> other(new NxTransform);
        for (NxSFVec3f NxTransform::*field :
            {&NxTransform::translation, &NxTransform::scaleFactor, &NxTransform::center})
            ((*other).*field).setValue(((*node).*field).getValue());
        other->rotation.setValue(node->rotation.getValue());
        NodePlacement dragged(*node, parent);
        for (int step = 1; step <= 1000; ++step)
            QVERIFY(dragged.apply(PlacementChange::turn(dragged.pivot(), VbVec3d(0, 1, 0), step * 0.01)));
        NodePlacement once(*other, parent);
        QVERIFY(once.apply(PlacementChange::turn(once.pivot(), VbVec3d(0, 1, 0), 10)));
        QVERIFY(differenceOf(localTransformOf(*node), [&](const VbVec3d& point) {
            return transformPoint(point, localTransformOf(*other));
        }) < 1e-5);
    }

    void restoresToTheBit()
    {
        Randoms random;
        const Matrix4d parent = random.affine();
        const NxRef<NxTransform> node = random.transform();
        const VbRotation rotation = node->rotation.getValue();
        const VbVec3f translation = node->translation.getValue();
        const VbVec3f scale = node->scaleFactor.getValue();
        NodePlacement placement(*node, parent);
        QVERIFY(placement.apply(random.turn(VbVec3d(9, 9, 9))));
        QVERIFY(!(node->rotation.getValue() == rotation));
        QVERIFY(placement.apply(PlacementChange::scale(VbVec3d(), placement.ownAxes(), VbVec3d(2, 3, 4))));
        placement.restore();
        QCOMPARE(node->rotation.getValue(), rotation);
        QCOMPARE(node->translation.getValue(), translation);
        QCOMPARE(node->scaleFactor.getValue(), scale);
    }

    void keepsTheAxisThatTheUserKnows()
    {
        const NxRef<NxTransform> node(new NxTransform);
        node->rotation.setValue(VbRotation(VbVec3f(0, 1, 0), 0.5F));
        NodePlacement placement(*node, Matrix4d());
        QVERIFY(placement.apply(PlacementChange::turn(VbVec3d(), VbVec3d(0, 1, 0), -1.25)));
        QVERIFY(length(subtract(VbVec3d(node->rotation.getValue().getAxis()), VbVec3d(0, 1, 0))) < 1e-6);
        QVERIFY(std::abs(node->rotation.getValue().getAngle() + 0.75F) < 1e-6F);
        QVERIFY(placement.apply(PlacementChange::turn(VbVec3d(), VbVec3d(0, 1, 0), -0.5)));
        QCOMPARE(node->rotation.getValue(), VbRotation(VbVec3f(0, 1, 0), 0));
    }

    void isExactFarFromTheOrigin()
    {
        Randoms random;
        const Matrix4d parent = translationMatrix(VbVec3d(1e7, -1e7, 5e6));
        const NxRef<NxTransform> node(new NxTransform);
        node->translation.setValue(VbVec3f(1, 2, 3));
        NodePlacement placement(*node, parent);
        QVERIFY(placement.apply(PlacementChange::move(VbVec3d(0.001, 0, -0.002))));
        QVERIFY(length(subtract(VbVec3d(node->translation.getValue()), VbVec3d(1.001, 2, 2.998))) < 1e-6);
        const VbVec3d beside = add(placement.pivot(), VbVec3d(1, 0, 0));
        placement.restore();
        QVERIFY(placement.apply(PlacementChange::turn(beside, VbVec3d(0, 0, 1), std::numbers::pi)));
        QVERIFY(length(subtract(VbVec3d(node->translation.getValue()), VbVec3d(3.002, 2, 3))) < 1e-5);
    }

    void movesAndTurnsLightsAndCameras()
    {
        Randoms random;
        for (int round = 0; round < rounds; ++round) {
            const Matrix4d parent = random.similarity(0);
            const NxRef<NxSpotLight> spot(new NxSpotLight);
            spot->location.setValue(narrowed(random.vector(3)));
            spot->direction.setValue(narrowed(random.axis()));
            const NxRef<NxPerspectiveCamera> camera(new NxPerspectiveCamera);
            camera->orientation.setValue(random.rotation());
            NodePlacement lamp(*spot, parent);
            NodePlacement eye(*camera, parent);
            const PlacementChange change = random.turn(random.vector(4));
            const VbVec3d from = lamp.pivot();
            const VbVec3d along = direction(spot->direction.getValue(), parent);
            const VbVec3d sight = scaled(eye.ownAxes()[2], -1);
            QVERIFY(lamp.apply(change));
            QVERIFY(eye.apply(change));
            QVERIFY(length(subtract(lamp.pivot(), change.applied(from))) < 1e-4);
            QVERIFY(
                length(subtract(direction(spot->direction.getValue(), parent), transformVector(along, change.linear())))
                < 1e-4);
            QVERIFY(length(subtract(scaled(eye.ownAxes()[2], -1), transformVector(sight, change.linear()))) < 1e-4);
        }
    }

    void saysWhatCanBeDone()
    {
        using Kind = PlacementChange::Kind;
        const auto abilities = [](NxNode* node) {
            const NxRef<NxNode> held(node);
            return std::vector<bool>{NodePlacement::can(*node, Kind::Move), NodePlacement::can(*node, Kind::Turn),
                NodePlacement::can(*node, Kind::Scale)};
        };
        QCOMPARE(abilities(new NxTransform), (std::vector<bool>{true, true, true}));
        QCOMPARE(abilities(new NxMatrixTransform), (std::vector<bool>{true, true, true}));
        QCOMPARE(abilities(new NxPerspectiveCamera), (std::vector<bool>{true, true, false}));
        QCOMPARE(abilities(new NxSpotLight), (std::vector<bool>{true, true, false}));
        QCOMPARE(abilities(new NxPointLight), (std::vector<bool>{true, false, false}));
        QCOMPARE(abilities(new NxDirectionalLight), (std::vector<bool>{false, true, false}));
        QCOMPARE(abilities(new NxGroup), (std::vector<bool>{false, false, false}));
        QCOMPARE(abilities(new NxMesh), (std::vector<bool>{false, false, false}));
        QCOMPARE(abilities(new NxMaterial), (std::vector<bool>{false, false, false}));
        const NxRef<NxTransform> node(new NxTransform);
        QCOMPARE(NodePlacement::fields(*node, Kind::Move), std::vector<NxField*>{&node->translation});
        QCOMPARE(
            NodePlacement::fields(*node, Kind::Scale), (std::vector<NxField*>{&node->translation, &node->scaleFactor}));
    }

    void writesNothingThatMakesNoSense()
    {
        const NxRef<NxTransform> node(new NxTransform);
        Matrix4d flat;
        flat[1][1] = 0;
        QVERIFY(!NodePlacement(*node, flat).apply(PlacementChange::move(VbVec3d(1, 1, 1))));
        const double nothing = std::numeric_limits<double>::quiet_NaN();
        QVERIFY(!NodePlacement(*node, Matrix4d()).apply(PlacementChange::move(VbVec3d(nothing, 0, 0))));
        QVERIFY(!NodePlacement(*node, Matrix4d()).apply(PlacementChange::move(VbVec3d(1e300, 0, 0))));
        QVERIFY(!NodePlacement(*node, Matrix4d())
                     .apply(PlacementChange::scale(
                         VbVec3d(), NodePlacement(*node, Matrix4d()).ownAxes(), VbVec3d(1, nothing, 1))));
        QCOMPARE(node->translation.getValue(), VbVec3f());
        QCOMPARE(node->scaleFactor.getValue(), VbVec3f(1, 1, 1));
        const NxRef<NxMatrixTransform> matrix(new NxMatrixTransform);
        QVERIFY(!NodePlacement(*matrix, Matrix4d()).apply(PlacementChange::move(VbVec3d(0, nothing, 0))));
        QCOMPARE(matrix->matrix.getValue(), VbMatrix());
    }
};

QTEST_APPLESS_MAIN(TestNodePlacement)
#include "tst_NodePlacement.moc"
