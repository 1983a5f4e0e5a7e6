#include "meridane/gl/geometry/CameraFields.h"
#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/gl/geometry/NxViewpoint.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxOrthographicCamera.h"
#include "meridane/scene/nodes/NxPerspectiveCamera.h"

#include <QTest>

#include <cmath>

using namespace meridane;

namespace {

/// Turned, scaled by two and moved.
Matrix4d turnedParent()
{
    VbMatrix matrix = rotationMatrix(VbRotation(VbVec3f(0.3F, 1, 0.2F), 0.8F));
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column)
            matrix[row][column] *= 2;
    }
    matrix[3][0] = 7;
    matrix[3][2] = -4;
    return Matrix4d(matrix);
}

NxViewpoint viewpoint(NxViewpoint::Projection projection)
{
    NxViewpoint result;
    result.setProjection(projection);
    result.orbit(0.7F, 0.4F);
    result.heightAngle = 0.5F;
    result.height = 3;
    return result;
}

} // namespace

/// Cameras that are set to what a viewpoint shows.
class TestCameraFields : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theCameraLooksAsTheViewpoint_data()
    {
        QTest::addColumn<bool>("isOrthographic");
        QTest::addColumn<bool>("hasParent");
        QTest::newRow("perspective") << false << false;
        QTest::newRow("perspective below a transform") << false << true;
        QTest::newRow("orthographic") << true << false;
        QTest::newRow("orthographic below a transform") << true << true;
    }
    void theCameraLooksAsTheViewpoint()
    {
        QFETCH(const bool, isOrthographic);
        QFETCH(const bool, hasParent);
        NxRef<NxCamera> camera(new NxPerspectiveCamera);
        if (isOrthographic)
            camera = NxRef<NxCamera>(new NxOrthographicCamera);
        const NxViewpoint wanted = viewpoint(isOrthographic ? NxViewpoint::ORTHOGRAPHIC : NxViewpoint::PERSPECTIVE);
        const Matrix4d cameraToScene = hasParent ? turnedParent() : Matrix4d();
        QCOMPARE(CameraFields(*camera).set(wanted, cameraToScene), CameraFields::Result::Set);
        const NxViewpoint seen = NxViewpoint::ofCamera(*camera, cameraToScene);
        QVERIFY(length(subtract(seen.position, wanted.position)) < 1e-4);
        QVERIFY(length(subtract(seen.viewDirection(), wanted.viewDirection())) < 1e-4);
        QVERIFY(length(subtract(seen.upAxis(), wanted.upAxis())) < 1e-4);
        QCOMPARE(seen.projection, wanted.projection);
        if (isOrthographic)
            QVERIFY(std::abs(seen.height - wanted.height) < 1e-4F);
        else
            QCOMPARE(seen.heightAngle, wanted.heightAngle);
        QCOMPARE(CameraFields(*camera).fields().size(), std::size_t{3});
    }

    void anotherProjectionGetsPlaceAndDirection()
    {
        const NxRef<NxPerspectiveCamera> camera(new NxPerspectiveCamera);
        const NxViewpoint wanted = viewpoint(NxViewpoint::ORTHOGRAPHIC);
        QCOMPARE(CameraFields(*camera).set(wanted, Matrix4d()), CameraFields::Result::WithoutSize);
        QVERIFY(length(subtract(NxViewpoint::ofCamera(*camera, Matrix4d()).position, wanted.position)) < 1e-4);
        QVERIFY(camera->heightAngle.getValue()
            == NxRef<NxPerspectiveCamera>(new NxPerspectiveCamera)->heightAngle.getValue());
    }

    void belowWhatIsFlatNothingIsWritten()
    {
        const NxRef<NxPerspectiveCamera> camera(new NxPerspectiveCamera);
        Matrix4d flat;
        flat[1][1] = 0;
        QCOMPARE(
            CameraFields(*camera).set(viewpoint(NxViewpoint::PERSPECTIVE), flat), CameraFields::Result::Impossible);
        QCOMPARE(camera->position.getValue(), VbVec3f(0, 0, 1));
    }

    void theDistancesTakeInTheScene()
    {
        const NxRef<NxPerspectiveCamera> camera(new NxPerspectiveCamera);
        camera->position.setValue(VbVec3f(0, 0, 0));
        CameraFields(*camera).include(VbVec3f(-1, -1, -5000), VbVec3f(1, 1, 1));
        QVERIFY(camera->farDistance.getValue() > 5000);
        QCOMPARE(camera->nearDistance.getValue(), 0.1F);
        CameraFields(*camera).include(VbVec3f(-0.01F, -0.01F, -0.01F), VbVec3f(0.01F, 0.01F, 0.01F));
        QVERIFY(camera->nearDistance.getValue() < 0.001F && camera->nearDistance.getValue() > 0);
    }
};

QTEST_GUILESS_MAIN(TestCameraFields)
#include "tst_CameraFields.moc"
