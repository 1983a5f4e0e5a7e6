#include "orvane/import/conversion/CameraConversion.h"
#include "orvane/import/conversion/TransformConversion.h"

#include "meridane/scene/nodes/NxOrthographicCamera.h"
#include "meridane/scene/nodes/NxPerspectiveCamera.h"

#include <QTest>

#include <cmath>

using namespace orvane;

class TestCameraConversion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theHeightFollowsFromWidthAndProportion()
    {
        aiCamera camera;
        camera.mHorizontalFOV = 2 * std::atan(2.0F);
        camera.mAspect = 2;
        const NxRef<NxCamera> wide = toCamera(camera);
        const auto* perspective = dynamic_cast<const NxPerspectiveCamera*>(wide.get());
        QVERIFY(perspective != nullptr);
        QVERIFY(std::abs(perspective->heightAngle.getValue() - 2 * std::atan(1.0F)) < 1e-6F);

        camera.mHorizontalFOV = 0;
        camera.mOrthographicWidth = 3; // half of what is seen
        const NxRef<NxCamera> flat = toCamera(camera);
        const auto* orthographic = dynamic_cast<const NxOrthographicCamera*>(flat.get());
        QVERIFY(orthographic != nullptr);
        QCOMPARE(orthographic->height.getValue(), 3.0F);
        camera.mAspect = 0; // unknown
        const NxRef<NxCamera> square = toCamera(camera);
        QCOMPARE(dynamic_cast<const NxOrthographicCamera&>(*square).height.getValue(), 6.0F);
    }

    void distancesThatMakeNoSenseAreLeftOut()
    {
        aiCamera camera;
        camera.mClipPlaneNear = 0;
        camera.mClipPlaneFar = -5;
        const NxRef<NxCamera> result = toCamera(camera);
        QVERIFY(result->nearDistance.isDefault());
        QVERIFY(result->farDistance.isDefault());
    }

    void aCameraIsMovedByAMatrixThatKeepsLengths()
    {
        aiCamera foreign;
        foreign.mPosition = aiVector3D(0, 0, 1);
        foreign.mLookAt = aiVector3D(0, 0, -1);
        const NxRef<NxCamera> camera = toCamera(foreign);
        QVERIFY(camera->orientation.isDefault());
        QVERIFY(moveCamera(*camera, rigidMatrix(VbRotation(VbVec3f(0, 1, 0), 0.5F), VbVec3f(5, 0, 0))));
        QCOMPARE(camera->position.getValue(), VbVec3f(5 + std::sin(0.5F), 0, std::cos(0.5F)));
        QVERIFY(std::abs(camera->orientation.getValue().getAngle() - 0.5F) < 1e-5F);

        aiMatrix4x4 twice;
        aiMatrix4x4::Scaling({2, 2, 2}, twice);
        const VbVec3f before = camera->position.getValue();
        QVERIFY(!moveCamera(*camera, twice));
        QCOMPARE(camera->position.getValue(), before);
    }

    void camerasComeBackAsTheyWere()
    {
        const NxRef<NxPerspectiveCamera> camera = new NxPerspectiveCamera;
        camera->position.setValue(1, 2, 3);
        camera->orientation.setValue(VbRotation(VbVec3f(0, 1, 0), 1));
        camera->nearDistance.setValue(0.5F);
        camera->farDistance.setValue(50);
        camera->heightAngle.setValue(1);
        aiMatrix4x4 transform;
        const std::unique_ptr<aiCamera> foreign = toAiCamera(*camera, transform);
        QVERIFY(foreign != nullptr);
        const NxRef<NxCamera> result = toCamera(*foreign);
        QVERIFY(moveCamera(*result, transform));
        QCOMPARE(result->position.getValue(), VbVec3f(1, 2, 3));
        QVERIFY(std::abs(result->orientation.getValue().getAngle() - 1) < 1e-5F);
        QCOMPARE(result->nearDistance.getValue(), 0.5F);
        QCOMPARE(result->farDistance.getValue(), 50.0F);
        QVERIFY(std::abs(dynamic_cast<NxPerspectiveCamera&>(*result).heightAngle.getValue() - 1) < 1e-6F);

        const NxRef<NxOrthographicCamera> flat = new NxOrthographicCamera;
        flat->height.setValue(7);
        const NxRef<NxCamera> sameFlat = toCamera(*toAiCamera(*flat, transform));
        QCOMPARE(dynamic_cast<NxOrthographicCamera&>(*sameFlat).height.getValue(), 7.0F);
    }
};

QTEST_GUILESS_MAIN(TestCameraConversion)
#include "tst_CameraConversion.moc"
