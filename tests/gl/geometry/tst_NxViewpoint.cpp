#include "gl/FloatMatrices.h"

#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/NxViewpoint.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxOrthographicCamera.h"
#include "meridane/scene/nodes/NxPerspectiveCamera.h"

#include <QTest>

#include <cmath>
#include <limits>
#include <numbers>

using namespace meridane;

namespace {

constexpr float aspect = 1.5F;
const VbVec2f middle(0.5F, 0.5F);

bool isNear(const VbVec3d& left, const VbVec3d& right, double tolerance = 1e-4)
{
    return length(subtract(left, right)) <= tolerance;
}

/// The place of a point of the scene in the picture, from (0, 0) to (1, 1).
VbVec2f placeOf(const VbVec3d& point, const NxViewpoint& viewpoint)
{
    const VbMatrix matrix = multiply(viewMatrix(viewpoint), viewpoint.projectionMatrix(aspect, 0.1F, 100));
    const VbVec3f clipped = transformPoint(narrowed(point), matrix);
    return {(clipped[0] + 1) / 2, (clipped[1] + 1) / 2};
}

bool isNear(const VbVec2f& left, const VbVec2f& right)
{
    return std::hypot(left[0] - right[0], left[1] - right[1]) < 1e-3F;
}

bool isFiniteAll(const NxViewpoint& viewpoint)
{
    bool finite = isFinite(viewpoint.focalPoint()) && isFinite(viewpoint.rightAxis()) && isFinite(viewpoint.upAxis())
        && isFinite(viewpoint.rayAt(VbVec2f(0.1F, 0.9F), aspect).direction);
    for (const VbMatrix& matrix : {viewMatrix(viewpoint), viewpoint.projectionMatrix(aspect, 1, 10)}) {
        for (std::size_t i = 0; i < 16; ++i)
            finite = finite && std::isfinite(matrix[i / 4][i % 4]);
    }
    return finite;
}

NxViewpoint turned(NxViewpoint::Projection projection)
{
    NxViewpoint viewpoint;
    viewpoint.setProjection(projection);
    viewpoint.orbit(0.7F, 0.4F);
    return viewpoint;
}

void addProjections()
{
    QTest::addColumn<NxViewpoint>("viewpoint");
    QTest::newRow("perspective") << turned(NxViewpoint::PERSPECTIVE);
    QTest::newRow("orthographic") << turned(NxViewpoint::ORTHOGRAPHIC);
}

} // namespace

class TestNxViewpoint : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void looksAlongNegativeZ()
    {
        const NxViewpoint viewpoint;
        QCOMPARE(viewpoint.viewDirection(), VbVec3f(0, 0, -1));
        QCOMPARE(viewpoint.focalPoint(), VbVec3d());
        QVERIFY(isNear(transformPoint(VbVec3f(1, 2, 0), viewMatrix(viewpoint)), VbVec3f(1, 2, -5)));
    }

    void clipsAtTheGivenDistances_data() { addProjections(); }
    void clipsAtTheGivenDistances()
    {
        QFETCH(const NxViewpoint, viewpoint);
        const VbMatrix matrix = viewpoint.projectionMatrix(aspect, 2, 8);
        QVERIFY(std::abs(transformPoint(VbVec3f(0, 0, -2), matrix)[2] + 1) < 1e-4F);
        QVERIFY(std::abs(transformPoint(VbVec3f(0, 0, -8), matrix)[2] - 1) < 1e-4F);
        const float half = viewpoint.heightAt(2) / 2;
        QVERIFY(isNear(transformPoint(VbVec3f(half * aspect, half, -2), matrix), VbVec3f(1, 1, -1)));
    }

    void raysMeetWhatIsUnderAPlace_data() { addProjections(); }
    void raysMeetWhatIsUnderAPlace()
    {
        QFETCH(const NxViewpoint, viewpoint);
        const VbVec2f place(0.2F, 0.85F);
        const NxRay ray = viewpoint.rayAt(place, aspect);
        QVERIFY(std::abs(length(ray.direction) - 1) < 1e-5);
        QVERIFY(isNear(placeOf(add(ray.origin, scaled(ray.direction, 3)), viewpoint), place));
        QVERIFY(isNear(placeOf(viewpoint.pointAt(place, aspect, 7), viewpoint), place));
        QVERIFY(std::abs(viewpoint.distanceTo(viewpoint.pointAt(place, aspect, 7)) - 7) < 1e-4F);
    }

    void orbitsAboutTheFocalPoint()
    {
        NxViewpoint viewpoint;
        viewpoint.position = VbVec3f(1, 2, 8);
        const VbVec3d focalPoint = viewpoint.focalPoint();
        viewpoint.orbit(std::numbers::pi_v<float> / 2, 0);
        QVERIFY(isNear(viewpoint.focalPoint(), focalPoint));
        QVERIFY(isNear(viewpoint.position, add(focalPoint, VbVec3f(5, 0, 0))));
        QVERIFY(isNear(viewpoint.upAxis(), VbVec3f(0, 1, 0)));
    }

    void orbitsAboutAPointThatStaysInThePicture_data() { addProjections(); }
    void orbitsAboutAPointThatStaysInThePicture()
    {
        QFETCH(NxViewpoint, viewpoint);
        const VbVec2f place(0.2F, 0.7F);
        const VbVec3d pivot = viewpoint.pointAt(place, aspect, 3);
        const VbVec3f direction = viewpoint.viewDirection();
        for (int step = 0; step < 20; ++step) {
            viewpoint.orbit(0.1F, step % 10 < 5 ? 0.2F : -0.1F, pivot);
            QVERIFY(isNear(placeOf(pivot, viewpoint), place));
            QVERIFY(std::abs(viewpoint.distanceTo(pivot) - 3) < 1e-3F);
        }
        QVERIFY(length(subtract(direction, viewpoint.viewDirection())) > 0.5);
        const NxViewpoint before = viewpoint;
        viewpoint.orbit(1, 0, VbVec3d(std::numeric_limits<double>::quiet_NaN(), 0, 0));
        QCOMPARE(viewpoint, before);
    }

    void orbitingAboutItselfItTurns()
    {
        NxViewpoint viewpoint;
        viewpoint.orbit(0.3F, 0, viewpoint.position);
        QVERIFY(isNear(viewpoint.position, VbVec3d(0, 0, 5)));
        QVERIFY(viewpoint.viewDirection()[0] < -0.2F);
        viewpoint.orbit(0, 0.3F, viewpoint.position);
        QVERIFY(viewpoint.viewDirection()[1] < -0.2F);
    }

    void orbitsNoFartherThanStraightAbove()
    {
        NxViewpoint viewpoint;
        viewpoint.orbit(0, 10);
        QVERIFY(isNear(viewpoint.position, VbVec3f(0, 5, 0)));
        QVERIFY(isNear(viewpoint.upAxis(), VbVec3f(0, 0, -1)));
        viewpoint.orbit(0, -10);
        QVERIFY(isNear(viewpoint.position, VbVec3f(0, -5, 0), 0.01));
        viewpoint.orbit(0, std::numbers::pi_v<float> / 2);
        QVERIFY(isNear(viewpoint.position, VbVec3f(0, 0, 5), 0.01));
    }

    void keepsTheHeadUpInAnyNumberOfOrbits()
    {
        NxViewpoint viewpoint;
        for (int step = 0; step < 2000; ++step)
            viewpoint.orbit(0.1F, step % 40 < 20 ? 0.03F : -0.03F);
        QVERIFY(std::abs(viewpoint.rightAxis()[1]) < 1e-3F);
        QVERIFY(isNear(viewpoint.focalPoint(), VbVec3f(), 0.01));
    }

    void pansWhatIsGrabbed_data() { addProjections(); }
    void pansWhatIsGrabbed()
    {
        QFETCH(NxViewpoint, viewpoint);
        const VbVec2f from(0.3F, 0.3F);
        const VbVec2f to(0.6F, 0.2F);
        const VbVec3d grabbed = viewpoint.pointAt(from, aspect, 6);
        viewpoint.pan(from, to, aspect, 6);
        QVERIFY(isNear(placeOf(grabbed, viewpoint), to));
    }

    void zoomsToAPoint_data() { addProjections(); }
    void zoomsToAPoint()
    {
        QFETCH(NxViewpoint, viewpoint);
        const VbVec2f place(0.25F, 0.7F);
        const VbVec3d point = viewpoint.pointAt(place, aspect, 5);
        const float height = viewpoint.heightAt(viewpoint.distanceTo(point));
        viewpoint.zoom(2, point);
        QVERIFY(isNear(placeOf(point, viewpoint), place));
        QVERIFY(std::abs(viewpoint.heightAt(viewpoint.distanceTo(point)) - height / 2) < 1e-3F);
    }

    void zoomsWithoutEnd()
    {
        NxViewpoint viewpoint;
        for (int step = 0; step < 1000; ++step)
            viewpoint.zoom(1.5F, VbVec3f(0.1F, 0, 0));
        QVERIFY(viewpoint.focalDistance > 0 && isFiniteAll(viewpoint));
        for (int step = 0; step < 2000; ++step)
            viewpoint.zoom(0.5F, VbVec3f(0.1F, 0, 0));
        QVERIFY(isFiniteAll(viewpoint));
    }

    void framesABox_data() { addProjections(); }
    void framesABox()
    {
        QFETCH(NxViewpoint, viewpoint);
        const VbVec3f min(10, -3, 2);
        const VbVec3f max(11, 4, 20);
        viewpoint.frame(min, max, aspect);
        QVERIFY(isNear(placeOf(VbVec3f(10.5F, 0.5F, 11), viewpoint), middle));
        float reach = 0;
        for (unsigned corner = 0; corner < 8; ++corner) {
            const VbVec3f point(
                (corner & 1U) != 0 ? 11.F : 10.F, (corner & 2U) != 0 ? 4.F : -3.F, (corner & 4U) != 0 ? 20.F : 2.F);
            const VbVec2f place = placeOf(point, viewpoint);
            reach = std::max({reach, std::abs(place[0] - 0.5F), std::abs(place[1] - 0.5F)});
            QVERIFY(viewpoint.distanceTo(point) > 0);
        }
        QVERIFY2(reach < 0.5F && reach > 0.4F, qPrintable(QString::number(static_cast<double>(reach))));
    }

    void framesAPointAtTheDistanceAsItIs()
    {
        NxViewpoint viewpoint;
        viewpoint.frame(VbVec3f(3, 3, 3), VbVec3f(3, 3, 3), aspect);
        QCOMPARE(viewpoint.position, VbVec3d(3, 3, 8));
        const NxViewpoint before = viewpoint;
        viewpoint.frame(VbVec3f(3, std::numeric_limits<float>::quiet_NaN(), 3), VbVec3f(3, 3, 3), aspect);
        QCOMPARE(viewpoint, before);
    }

    void looksAlongAnAxis_data()
    {
        QTest::addColumn<float>("x");
        QTest::addColumn<float>("y");
        QTest::addColumn<float>("z");
        for (const float sign : {1.F, -1.F}) {
            QTest::addRow("x %g", static_cast<double>(sign)) << sign << 0.F << 0.F;
            QTest::addRow("y %g", static_cast<double>(sign)) << 0.F << sign << 0.F;
            QTest::addRow("z %g", static_cast<double>(sign)) << 0.F << 0.F << sign;
        }
    }
    void looksAlongAnAxis()
    {
        QFETCH(const float, x);
        QFETCH(const float, y);
        QFETCH(const float, z);
        const VbVec3f direction(x, y, z);
        NxViewpoint viewpoint;
        viewpoint.orbit(1, 0.3F);
        viewpoint.lookAlong(direction, VbVec3f(0, 1, 0));
        QVERIFY(isNear(viewpoint.viewDirection(), direction));
        QVERIFY(isNear(viewpoint.focalPoint(), VbVec3f()));
        QVERIFY(isNear(viewpoint.position, scaled(direction, -5)));
        QVERIFY(isNear(cross(viewpoint.viewDirection(), viewpoint.upAxis()), viewpoint.rightAxis()));
    }

    void keepsTheSizeWhenTheProjectionChanges()
    {
        NxViewpoint viewpoint = turned(NxViewpoint::PERSPECTIVE);
        const NxViewpoint before = viewpoint;
        viewpoint.zoom(3, VbVec3f(0.5F, 0.1F, 0));
        const float height = viewpoint.heightAt(viewpoint.focalDistance);
        const VbVec3d focalPoint = viewpoint.focalPoint();
        viewpoint.setProjection(NxViewpoint::ORTHOGRAPHIC);
        QVERIFY(std::abs(viewpoint.heightAt(1) - height) < 1e-4F);
        viewpoint.zoom(2, focalPoint);
        viewpoint.setProjection(NxViewpoint::PERSPECTIVE);
        QVERIFY(std::abs(viewpoint.heightAt(viewpoint.focalDistance) - height / 2) < 1e-4F);
        QVERIFY(isNear(viewpoint.focalPoint(), focalPoint));
        QCOMPARE(viewpoint.heightAngle, before.heightAngle);
    }

    void takesOverACamera()
    {
        const NxRef<NxPerspectiveCamera> camera(new NxPerspectiveCamera);
        camera->position.setValue(VbVec3f(1, 0, 0));
        camera->orientation.setValue(VbRotation(VbVec3f(0, 2, 0), std::numbers::pi_v<float> / 2));
        camera->heightAngle.setValue(1);
        const VbMatrix place = multiply(scaleMatrix(VbVec3f(2, 2, 2)), translationMatrix(VbVec3f(0, 0, 7)));
        const NxViewpoint viewpoint = NxViewpoint::ofCamera(*camera, place);
        QCOMPARE(viewpoint.projection, NxViewpoint::PERSPECTIVE);
        QVERIFY(isNear(viewpoint.position, VbVec3f(2, 0, 7)));
        QVERIFY(isNear(viewpoint.viewDirection(), VbVec3f(-1, 0, 0)));
        QCOMPARE(viewpoint.heightAngle, 1.F);
        camera->heightAngle.setIgnored(1);
        camera->position.setIgnored(1);
        QCOMPARE(NxViewpoint::ofCamera(*camera, VbMatrix()).heightAngle, NxViewpoint().heightAngle);
        QCOMPARE(NxViewpoint::ofCamera(*camera, VbMatrix()).position, VbVec3d(0, 0, 1));
    }

    void takesOverAnOrthographicCamera()
    {
        const NxRef<NxOrthographicCamera> camera(new NxOrthographicCamera);
        camera->height.setValue(3);
        const NxViewpoint viewpoint = NxViewpoint::ofCamera(*camera, scaleMatrix(VbVec3f(2, 2, 2)));
        QCOMPARE(viewpoint.projection, NxViewpoint::ORTHOGRAPHIC);
        QCOMPARE(viewpoint.height, 6.F);
        camera->height.setIgnored(1);
        QCOMPARE(NxViewpoint::ofCamera(*camera, VbMatrix()).height, 2.F);
    }

    void anIgnoredOrientationLooksAlongNegativeZ()
    {
        const NxRef<NxPerspectiveCamera> camera(new NxPerspectiveCamera);
        camera->orientation.setValue(VbRotation(VbVec3f(0, 1, 0), 1));
        camera->orientation.setIgnored(1);
        QVERIFY(isNear(NxViewpoint::ofCamera(*camera, VbMatrix()).viewDirection(), VbVec3f(0, 0, -1)));
    }

    void equalsOnlyOneWithTheSameMembers()
    {
        const NxViewpoint viewpoint;
        QVERIFY(viewpoint == NxViewpoint());
        NxViewpoint other;
        other.position = VbVec3d(1, 0, 5);
        QVERIFY(viewpoint != other);
        other = NxViewpoint();
        other.orientation = VbRotation(VbVec3f(0, 1, 0), 1);
        QVERIFY(viewpoint != other);
        other = NxViewpoint();
        other.projection = NxViewpoint::ORTHOGRAPHIC;
        QVERIFY(viewpoint != other);
        for (float NxViewpoint::*const member :
            {&NxViewpoint::heightAngle, &NxViewpoint::height, &NxViewpoint::focalDistance}) {
            other = NxViewpoint();
            other.*member = 1;
            QVERIFY(viewpoint != other);
        }
    }

    void orbitsWithTheHeadDown()
    {
        NxViewpoint viewpoint;
        viewpoint.orientation = VbRotation(VbVec3f(0, 0, 1), std::numbers::pi_v<float>);
        QVERIFY(isNear(viewpoint.upAxis(), VbVec3f(0, -1, 0)));
        viewpoint.orbit(std::numbers::pi_v<float> / 2, 0);
        // To the right as the viewer sees it, and with the head still down.
        QVERIFY(isNear(viewpoint.position, VbVec3f(-5, 0, 0)));
        QVERIFY(isNear(viewpoint.upAxis(), VbVec3f(0, -1, 0)));
    }

    void focusesOnWhatIsAhead()
    {
        NxViewpoint viewpoint;
        viewpoint.focus(VbVec3d(1, 1, 2));
        QCOMPARE(viewpoint.focalDistance, 3.F);
        viewpoint.focus(VbVec3d(0, 0, 6)); // behind
        QCOMPARE(viewpoint.focalDistance, 3.F);
        viewpoint.focus(VbVec3d(0, 0, -1e300)); // farther away than the largest float
        QCOMPARE(viewpoint.focalDistance, 3.F);
    }

    void survivesACameraInsideOut_data()
    {
        QTest::addColumn<float>("number");
        QTest::newRow("zero") << 0.F;
        QTest::newRow("negative") << -2.F;
        QTest::newRow("no number") << std::numeric_limits<float>::quiet_NaN();
        QTest::newRow("infinite") << std::numeric_limits<float>::infinity();
        QTest::newRow("largest") << std::numeric_limits<float>::max();
        QTest::newRow("smallest") << std::numeric_limits<float>::denorm_min();
    }
    void survivesACameraInsideOut()
    {
        QFETCH(const float, number);
        const NxRef<NxOrthographicCamera> flat(new NxOrthographicCamera);
        flat->height.setValue(number);
        const NxRef<NxPerspectiveCamera> camera(new NxPerspectiveCamera);
        camera->heightAngle.setValue(number);
        camera->orientation.setValue(VbRotation(VbVec3f(number, 0, 0), number));
        const VbVec3f factors(number, number, number);
        QVERIFY(isFiniteAll(NxViewpoint::ofCamera(*flat, scaleMatrix(factors))));
        NxViewpoint viewpoint = NxViewpoint::ofCamera(*camera, scaleMatrix(factors));
        QVERIFY(isFiniteAll(viewpoint));
        viewpoint.focalDistance = number;
        QVERIFY(isFiniteAll(viewpoint));
        viewpoint.orbit(number, 1);
        viewpoint.orbit(1, number);
        viewpoint.zoom(number, factors);
        viewpoint.zoom(2, factors);
        viewpoint.pan(middle, VbVec2f(0, number), aspect, 1);
        viewpoint.lookAlong(factors, factors);
        viewpoint.frame(VbVec3f(), factors, number);
        viewpoint.setProjection(NxViewpoint::ORTHOGRAPHIC);
        QVERIFY(isFiniteAll(viewpoint));
    }
};

QTEST_GUILESS_MAIN(TestNxViewpoint)
#include "tst_NxViewpoint.moc"
