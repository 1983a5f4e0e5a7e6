#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/NxViewpoint.h"
#include "meridane/gl/geometry/PictureProjection.h"

#include <QTest>

#include <cmath>
#include <random>

using namespace meridane;

namespace {

constexpr double width = 600;
constexpr double height = 400;

NxViewpoint viewpointOf(NxViewpoint::Projection projection, const VbVec3d& focus)
{
    NxViewpoint viewpoint;
    viewpoint.position = add(focus, VbVec3d(0, 0, 5));
    viewpoint.setProjection(projection);
    viewpoint.orbit(0.7F, 0.4F);
    return viewpoint;
}

} // namespace

/// Points of the scene in the picture and back.
class TestPictureProjection : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void linesOfSightLeadToThePointsThatAreSeen_data()
    {
        QTest::addColumn<int>("projection");
        QTest::addColumn<double>("away");
        QTest::newRow("perspective") << int{NxViewpoint::PERSPECTIVE} << 0.0;
        QTest::newRow("orthographic") << int{NxViewpoint::ORTHOGRAPHIC} << 0.0;
        QTest::newRow("perspective, far away") << int{NxViewpoint::PERSPECTIVE} << 1e7;
        QTest::newRow("orthographic, far away") << int{NxViewpoint::ORTHOGRAPHIC} << 1e7;
    }
    void linesOfSightLeadToThePointsThatAreSeen()
    {
        QFETCH(int, projection);
        QFETCH(double, away);
        const VbVec3d focus(away, -away, away / 2);
        const NxViewpoint viewpoint = viewpointOf(static_cast<NxViewpoint::Projection>(projection), focus);
        const PictureProjection picture(viewpoint, width, height);
        std::mt19937 random(7);
        std::uniform_real_distribution<double> around(-1, 1);
        for (int i = 0; i < 200; ++i) {
            const VbVec3d point = add(focus, VbVec3d(around(random), around(random), around(random)));
            const auto place = picture.placeOf(point);
            QVERIFY(place.has_value());
            const SightLine line = picture.lineAt(*place);
            const VbVec3d way = subtract(point, line.origin);
            QVERIFY(std::abs(length(line.direction) - 1) < 1e-9);
            QVERIFY(length(cross(way, line.direction)) < 1e-6);
            // One point of the screen to the right is that long.
            const auto beside = picture.placeOf(add(point, scaled(picture.right(), picture.unitsPerPoint(point))));
            QVERIFY(std::abs((*beside)[0] - (*place)[0] - 1) < 1e-4);
            QVERIFY(dot(picture.directionTo(point), normalized(way, VbVec3d())) > 0.999999
                || projection == NxViewpoint::ORTHOGRAPHIC);
        }
    }

    void theFocalPointIsInTheMiddle()
    {
        const NxViewpoint viewpoint = viewpointOf(NxViewpoint::PERSPECTIVE, VbVec3d(3, 4, 5));
        const auto place = PictureProjection(viewpoint, width, height).placeOf(viewpoint.focalPoint());
        QVERIFY(std::abs((*place)[0] - width / 2) < 1e-3);
        QVERIFY(std::abs((*place)[1] - height / 2) < 1e-3);
    }

    void whatIsBehindTheViewerIsNowhere()
    {
        NxViewpoint viewpoint;
        const PictureProjection picture(viewpoint, width, height);
        QVERIFY(!picture.placeOf(VbVec3d(0, 0, 6)));
        QVERIFY(!picture.placeOf(viewpoint.position));
        viewpoint.projection = NxViewpoint::ORTHOGRAPHIC;
        QVERIFY(PictureProjection(viewpoint, width, height).placeOf(VbVec3d(0, 0, 6)));
    }
};

QTEST_APPLESS_MAIN(TestPictureProjection)
#include "tst_PictureProjection.moc"
