#include "gl/FloatMatrices.h"

#include "meridane/gl/NxRayPick.h"
#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxSwitch.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QTest>

#include <cmath>
#include <limits>
#include <vector>

using namespace meridane;

namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float noNumber = std::numeric_limits<float>::quiet_NaN();

/// From z = 10 towards the origin's plane.
NxRay rayAt(float x, float y)
{
    return {VbVec3f(x, y, 10), VbVec3f(0, 0, -1)};
}

/// A triangle in the plane z = 0 with the right angle at the origin.
NxRef<NxMesh> makeTriangle()
{
    NxRef<NxMesh> mesh(new NxMesh);
    mesh->positions.setValues(std::vector<VbVec3f>{VbVec3f(0, 0, 0), VbVec3f(2, 0, 0), VbVec3f(0, 2, 0)});
    return mesh;
}

bool isNear(const VbVec3d& left, const VbVec3d& right)
{
    return length(subtract(left, right)) < 1e-4;
}

} // namespace

class TestNxRayPick : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_scene = NxRef<NxGroup>(new NxGroup); }

    void isExactToTheTriangle_data()
    {
        QTest::addColumn<float>("x");
        QTest::addColumn<float>("y");
        QTest::addColumn<bool>("met");
        QTest::newRow("middle") << 0.5F << 0.5F << true;
        QTest::newRow("just inside the long side") << 0.999F << 1.F << true;
        QTest::newRow("just outside the long side") << 1.001F << 1.F << false;
        QTest::newRow("just inside an end") << 1.99F << 0.001F << true;
        QTest::newRow("below") << 0.5F << -0.001F << false;
        QTest::newRow("left") << -0.001F << 0.5F << false;
    }
    void isExactToTheTriangle()
    {
        QFETCH(const float, x);
        QFETCH(const float, y);
        QFETCH(const bool, met);
        const NxRef<NxMesh> mesh = makeTriangle();
        m_scene->addChild(mesh.get());
        const auto hit = NxRayPick(rayAt(x, y)).pick(*m_scene);
        QCOMPARE(hit.has_value(), met);
        if (!met)
            return;
        QCOMPARE(hit->path, std::vector<NxNode*>{mesh.get()});
        QVERIFY(isNear(hit->point, VbVec3f(x, y, 0)));
        QVERIFY(std::abs(hit->distance - 10) < 1e-4F);
        QCOMPARE(hit->primitive, 0);
    }

    void meetsEachPointOfASharedEdge()
    {
        const NxRef<NxMesh> mesh = makeTriangle();
        mesh->positions.setValues(
            std::vector<VbVec3f>{VbVec3f(0, 0, 0), VbVec3f(1, 0, 0), VbVec3f(1, 1, 0), VbVec3f(0, 1, 0)});
        mesh->indices.setValues(std::vector<int>{0, 1, 2, 0, 2, 3});
        m_scene->addChild(mesh.get());
        for (int step = 1; step < 1000; ++step) {
            const float place = static_cast<float>(step) / 1000;
            QVERIFY(NxRayPick(rayAt(place, place)).pick(*m_scene));
        }
    }

    void meetsEitherSideAndTheNearestFirst()
    {
        const NxRef<NxMesh> mesh = makeTriangle();
        mesh->positions.setValues(
            std::vector<VbVec3f>{VbVec3f(0, 0, 0), VbVec3f(2, 0, 0), VbVec3f(0, 2, 0), VbVec3f(0, 0, 1),
                VbVec3f(0, 2, 1), VbVec3f(2, 0, 1), VbVec3f(0, 0, 20), VbVec3f(0, 2, 20), VbVec3f(2, 0, 20)});
        m_scene->addChild(mesh.get());
        QCOMPARE(NxRayPick(rayAt(0.5F, 0.5F)).pick(*m_scene)->primitive, 1);
        NxRayPick beyond(rayAt(0.5F, 0.5F));
        beyond.setDistances(9.5F, 100);
        QCOMPARE(beyond.pick(*m_scene)->primitive, 0);
        beyond.setDistances(-100, 100);
        QCOMPARE(beyond.pick(*m_scene)->primitive, 2);
    }

    void honoursTransforms()
    {
        const NxRef<NxMesh> mesh = makeTriangle();
        const NxRef<NxTransform> moved(new NxTransform);
        moved->translation.setValue(VbVec3f(5, 0, 1));
        moved->rotation.setValue(VbRotation(VbVec3f(0, 0, 1), 3.14159265F));
        const NxRef<NxMatrixTransform> large(new NxMatrixTransform);
        large->matrix.setValue(scaleMatrix(VbVec3f(2, 2, 2)));
        large->addChild(mesh.get());
        moved->addChild(large.get());
        m_scene->addChild(moved.get());
        const auto hit = NxRayPick(rayAt(1.5F, -0.2F)).pick(*m_scene);
        QVERIFY(hit);
        QCOMPARE(hit->path, (std::vector<NxNode*>{moved.get(), large.get(), mesh.get()}));
        QVERIFY(isNear(hit->point, VbVec3f(1.5F, -0.2F, 1)));
        QVERIFY(!NxRayPick(rayAt(5.5F, 0.2F)).pick(*m_scene));
        moved->rotation.setIgnored(1);
        QVERIFY(NxRayPick(rayAt(5.5F, 0.2F)).pick(*m_scene));
    }

    void honoursMatricesThatAreNotAffine_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<float>("number"); // in the last column of the matrix
        QTest::addColumn<bool>("meetsRight");
        QTest::addColumn<bool>("meetsAbove");
        QTest::newRow("along x") << 0 << 0.5F << false << true;
        QTest::newRow("along y") << 1 << 0.5F << true << false;
        QTest::newRow("along z") << 2 << 0.5F << true << true; // the triangle has no z
        QTest::newRow("everywhere") << 3 << 2.F << false << false;
    }
    void honoursMatricesThatAreNotAffine()
    {
        QFETCH(const int, row);
        QFETCH(const float, number);
        QFETCH(const bool, meetsRight);
        QFETCH(const bool, meetsAbove);
        VbMatrix matrix;
        matrix[static_cast<std::size_t>(row)][3] = number;
        const NxRef<NxMatrixTransform> transform(new NxMatrixTransform);
        transform->matrix.setValue(matrix);
        transform->addChild(makeTriangle().get());
        m_scene->addChild(transform.get());
        QVERIFY(NxRayPick(rayAt(0.2F, 0.2F)).pick(*m_scene));
        QCOMPARE(NxRayPick(rayAt(1.5F, 0.1F)).pick(*m_scene).has_value(), meetsRight);
        QCOMPARE(NxRayPick(rayAt(0.1F, 1.5F)).pick(*m_scene).has_value(), meetsAbove);
    }

    void anIgnoredPrimitiveIsATriangle()
    {
        const NxRef<NxMesh> mesh = makeTriangle();
        mesh->primitive.setValue(NxMesh::POINTS);
        m_scene->addChild(mesh.get());
        QVERIFY(!NxRayPick(rayAt(0.5F, 0.5F)).pick(*m_scene));
        mesh->primitive.setIgnored(1);
        QVERIFY(NxRayPick(rayAt(0.5F, 0.5F)).pick(*m_scene));
    }

    void anIgnoredSwitchShowsNoChild()
    {
        const NxRef<NxSwitch> choice(new NxSwitch);
        choice->addChild(makeTriangle().get());
        choice->whichChild.setValue(0);
        m_scene->addChild(choice.get());
        QVERIFY(NxRayPick(rayAt(0.5F, 0.5F)).pick(*m_scene));
        choice->whichChild.setIgnored(1);
        QVERIFY(!NxRayPick(rayAt(0.5F, 0.5F)).pick(*m_scene));
    }

    void tellsThePlaceOfASharedNode()
    {
        const NxRef<NxMesh> mesh = makeTriangle();
        const NxRef<NxTransform> left(new NxTransform);
        const NxRef<NxTransform> right(new NxTransform);
        right->translation.setValue(VbVec3f(10, 0, 0));
        left->addChild(mesh.get());
        right->addChild(mesh.get());
        m_scene->addChild(left.get());
        m_scene->addChild(right.get());
        QCOMPARE(NxRayPick(rayAt(10.5F, 0.5F)).pick(*m_scene)->path, (std::vector<NxNode*>{right.get(), mesh.get()}));
        QCOMPARE(NxRayPick(rayAt(0.5F, 0.5F)).pick(*m_scene)->path, (std::vector<NxNode*>{left.get(), mesh.get()}));
    }

    void followsSwitches_data()
    {
        QTest::addColumn<int>("which");
        QTest::addColumn<bool>("met");
        QTest::newRow("none") << int{NxSwitch::NONE} << false;
        QTest::newRow("all") << int{NxSwitch::ALL} << true;
        QTest::newRow("this one") << 1 << true;
        QTest::newRow("another one") << 0 << false;
        QTest::newRow("beyond the last") << 2 << false;
        QTest::newRow("no index") << -7 << false;
    }
    void followsSwitches()
    {
        QFETCH(const int, which);
        QFETCH(const bool, met);
        const NxRef<NxSwitch> chooser(new NxSwitch);
        chooser->whichChild.setValue(which);
        chooser->addChild(NxRef<NxGroup>(new NxGroup).get());
        chooser->addChild(makeTriangle().get());
        m_scene->addChild(chooser.get());
        const auto hit = NxRayPick(rayAt(0.5F, 0.5F)).pick(*m_scene);
        QCOMPARE(hit.has_value(), met);
        if (met)
            QCOMPARE(hit->path, (std::vector<NxNode*>{chooser.get(), chooser->getChild(1)}));
    }

    void passesOverIgnoredPositions()
    {
        const NxRef<NxMesh> mesh = makeTriangle();
        m_scene->addChild(mesh.get());
        mesh->indices.setValues(std::vector<int>{0, 0, 0});
        QVERIFY(!NxRayPick(rayAt(0.5F, 0.5F)).pick(*m_scene));
        mesh->indices.setIgnored(1);
        QVERIFY(NxRayPick(rayAt(0.5F, 0.5F)).pick(*m_scene));
        mesh->positions.setIgnored(1);
        QVERIFY(!NxRayPick(rayAt(0.5F, 0.5F)).pick(*m_scene));
    }

    void meetsLinesAndPointsCloseBy_data()
    {
        QTest::addColumn<int>("primitive");
        QTest::addColumn<float>("x");
        QTest::addColumn<float>("y");
        QTest::addColumn<bool>("met");
        QTest::newRow("on a line") << int{NxMesh::LINES} << 1.F << 0.F << true;
        QTest::newRow("close to a line") << int{NxMesh::LINES} << 1.F << 0.09F << true;
        QTest::newRow("off a line") << int{NxMesh::LINES} << 1.F << 0.11F << false;
        QTest::newRow("close to the end of a line") << int{NxMesh::LINES} << -0.09F << 0.F << true;
        QTest::newRow("beyond the end of a line") << int{NxMesh::LINES} << -0.11F << 0.F << false;
        QTest::newRow("close to a point") << int{NxMesh::POINTS} << 0.05F << 2.05F << true;
        QTest::newRow("off a point") << int{NxMesh::POINTS} << 0.1F << 2.1F << false;
    }
    void meetsLinesAndPointsCloseBy()
    {
        QFETCH(const int, primitive);
        QFETCH(const float, x);
        QFETCH(const float, y);
        QFETCH(const bool, met);
        const NxRef<NxMesh> mesh = makeTriangle();
        mesh->primitive.setValue(primitive);
        m_scene->addChild(mesh.get());
        NxRayPick parallel(rayAt(x, y));
        parallel.setTolerance(0.1F, 0);
        QCOMPARE(parallel.pick(*m_scene).has_value(), met);
        NxRayPick widening(rayAt(x, y));
        widening.setTolerance(0, 0.01F);
        QCOMPARE(widening.pick(*m_scene).has_value(), met);
        QVERIFY(!NxRayPick(rayAt(x + 0.001F, y + 0.001F)).pick(*m_scene));
    }

    void measuresLinesAsThePictureShowsThem()
    {
        const NxRef<NxMesh> mesh(new NxMesh);
        mesh->primitive.setValue(NxMesh::LINES);
        // From beside the viewer, and a bit behind, far into the picture: there it ends close to the middle.
        mesh->positions.setValues(std::vector<VbVec3f>{VbVec3f(1, 0, 11), VbVec3f(3, 0, -990)});
        m_scene->addChild(mesh.get());
        NxRayPick pick(rayAt(0, 0));
        pick.setTolerance(0, 0.004F);
        const auto hit = pick.pick(*m_scene);
        QVERIFY(hit);
        QVERIFY(hit->distance > 900);
        pick.setTolerance(0, 0.002F);
        QVERIFY(!pick.pick(*m_scene));
    }

    void meetsALineOnASurfaceAheadOfTheSurface()
    {
        const NxRef<NxMesh> line = makeTriangle();
        line->primitive.setValue(NxMesh::LINES);
        m_scene->addChild(line.get());
        m_scene->addChild(makeTriangle().get());
        NxRayPick pick(rayAt(1, 0.05F));
        pick.setTolerance(0.1F, 0);
        QCOMPARE(pick.pick(*m_scene)->path.back(), line.get());
    }

    void meetsWhatATransformMadeFlat()
    {
        const NxRef<NxTransform> flat(new NxTransform);
        flat->scaleFactor.setValue(VbVec3f(1, 1, 0));
        flat->addChild(makeTriangle().get());
        m_scene->addChild(flat.get());
        QVERIFY(NxRayPick(rayAt(0.5F, 0.5F)).pick(*m_scene));
        flat->scaleFactor.setValue(VbVec3f(0, 0, 0));
        QVERIFY(!NxRayPick(rayAt(0.5F, 0.5F)).pick(*m_scene));
    }

    void passesOverWhatIsNoShape_data()
    {
        QTest::addColumn<QVector<int>>("indices");
        QTest::newRow("negative") << QVector<int>{-1, 1, 2};
        QTest::newRow("beyond the last") << QVector<int>{0, 1, 5};
        QTest::newRow("largest") << QVector<int>{0, std::numeric_limits<int>::max(), 2};
        QTest::newRow("smallest") << QVector<int>{0, 1, std::numeric_limits<int>::min()};
        QTest::newRow("incomplete") << QVector<int>{0, 1};
        QTest::newRow("not a number") << QVector<int>{0, 1, 3};
        QTest::newRow("infinite") << QVector<int>{0, 4, 2};
    }
    void passesOverWhatIsNoShape()
    {
        QFETCH(const QVector<int>, indices);
        const NxRef<NxMesh> mesh = makeTriangle();
        mesh->positions.setValues(std::vector<VbVec3f>{
            VbVec3f(0, 0, 0), VbVec3f(2, 0, 0), VbVec3f(0, 2, 0), VbVec3f(noNumber, 1, 0), VbVec3f(infinity, 0, 0)});
        mesh->indices.setValues(std::vector<int>(indices.begin(), indices.end()));
        m_scene->addChild(mesh.get());
        for (int primitive = -1; primitive < 4; ++primitive) {
            mesh->primitive.setValue(primitive);
            NxRayPick pick(rayAt(0.5F, 0.5F));
            pick.setTolerance(0.01F, 0.01F);
            QVERIFY(!pick.pick(*m_scene));
        }
        // Whole ones beside it are met all the same.
        auto both = std::vector<int>{0, 1, 2};
        both.insert(both.end(), indices.begin(), indices.end());
        mesh->primitive.setValue(NxMesh::TRIANGLES);
        mesh->indices.setValues(std::move(both));
        QVERIFY(NxRayPick(rayAt(0.5F, 0.5F)).pick(*m_scene));
    }

    void passesOverTransformsThatAreNotFinite()
    {
        const NxRef<NxMatrixTransform> transform(new NxMatrixTransform);
        VbMatrix matrix;
        matrix[0][0] = noNumber;
        transform->matrix.setValue(matrix);
        transform->addChild(makeTriangle().get());
        m_scene->addChild(transform.get());
        QVERIFY(!NxRayPick(rayAt(0.5F, 0.5F)).pick(*m_scene));
        transform->matrix.setIgnored(1);
        QVERIFY(NxRayPick(rayAt(0.5F, 0.5F)).pick(*m_scene));
    }

    void reachesTheBottomOfADeepScene()
    {
        constexpr int depth = 200'000;
        NxRef<NxGroup> top = makeChain(depth);
        const auto hit = NxRayPick(rayAt(0.5F, 0.5F)).pick(*top);
        QVERIFY(hit);
        QCOMPARE(hit->path.size(), static_cast<std::size_t>(depth));
        // From the top down, or the chain's end would take the stack.
        while (top->getNumChildren() > 0) {
            const NxRef<NxNode> child(top->getChild(0));
            auto* group = dynamic_cast<NxGroup*>(child.get());
            top->removeChild(0);
            if (group == nullptr)
                break;
            top = NxRef<NxGroup>(group);
        }
    }

    void agreesWithTheViewpoint()
    {
        const NxRef<NxMesh> mesh = makeTriangle();
        m_scene->addChild(mesh.get());
        for (const auto projection : {NxViewpoint::PERSPECTIVE, NxViewpoint::ORTHOGRAPHIC}) {
            NxViewpoint viewpoint;
            viewpoint.setProjection(projection);
            viewpoint.frame(VbVec3f(), VbVec3f(2, 2, 0), 1.5F);
            const auto middle = NxRayPick(viewpoint.rayAt(VbVec2f(0.5F, 0.5F), 1.5F)).pick(*m_scene);
            QVERIFY(middle && isNear(middle->point, VbVec3f(1, 1, 0)));
            QVERIFY(!NxRayPick(viewpoint.rayAt(VbVec2f(0.6F, 0.6F), 1.5F)).pick(*m_scene));
        }
    }

private:
    static NxRef<NxGroup> makeChain(int depth)
    {
        NxRef<NxNode> bottom(makeTriangle().get());
        for (int level = 0; level < depth; ++level) {
            const NxRef<NxGroup> group(new NxGroup);
            group->addChild(bottom.get());
            bottom = NxRef<NxNode>(group.get());
        }
        return NxRef<NxGroup>(dynamic_cast<NxGroup*>(bottom.get()));
    }

    NxRef<NxGroup> m_scene;
};

QTEST_GUILESS_MAIN(TestNxRayPick)
#include "tst_NxRayPick.moc"
