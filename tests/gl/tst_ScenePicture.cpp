#include "gl/DrawingBench.h"

#include "meridane/scene/NxMaterial.h"
#include "meridane/scene/NxTransform.h"

#include <cmath>

namespace {

QColor grey(double value)
{
    return QColor::fromRgbF(static_cast<float>(value), static_cast<float>(value), static_cast<float>(value));
}

/// A material that reflects direct light only.
NxRef<NxMaterial> plain(float red, float green, float blue, float transparency = 0)
{
    NxRef<NxMaterial> material = new NxMaterial;
    material->ambientColor.setValue(VbColor());
    material->diffuseColor.setValue(VbColor(red, green, blue));
    material->transparency.setValue(transparency);
    return material;
}

class TestScenePicture : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aBallIsLitByTheCamera();
    void aTransformMovesItsMeshes();
};

void TestScenePicture::aBallIsLitByTheCamera()
{
    DrawingBench bench;
    const auto material = plain(1, 1, 1);
    const auto mesh = ball(0.8F);
    const auto scene = groupOf({material.get(), mesh.get()});
    bench.drawing().setScene(scene.get());
    const QImage picture = bench.draw();
    for (const double x : {-0.6, -0.3, 0.0, 0.3, 0.6})
        COMPARE_PIXEL(picture, x, 0, grey(std::sqrt(1 - x * x / 0.64)), 6);
    COMPARE_PIXEL(picture, 0.9, 0, grey(0));
    QCOMPARE(bench.takeMessages(), QStringList());
}

void TestScenePicture::aTransformMovesItsMeshes()
{
    DrawingBench bench;
    const auto material = plain(1, 0, 0);
    const auto mesh = rectangle(-0.2F, -0.2F, 0.2F, 0.2F);
    const auto transform = make<NxTransform>();
    transform->translation.setValue(VbVec3f(0.5F, 0.5F, 0));
    transform->scaleFactor.setValue(VbVec3f(2, 1, 1));
    transform->addChild(mesh.get());
    const auto scene = groupOf({material.get(), transform.get()});
    bench.drawing().setScene(scene.get());
    const QImage picture = bench.draw();
    COMPARE_PIXEL(picture, 0.5, 0.5, QColor(255, 0, 0));
    COMPARE_PIXEL(picture, 0.85, 0.65, QColor(255, 0, 0));
    COMPARE_PIXEL(picture, 0.5, 0.8, QColor(0, 0, 0));
    COMPARE_PIXEL(picture, 0, 0, QColor(0, 0, 0));
}

} // namespace

QTEST_APPLESS_MAIN(TestScenePicture)
#include "tst_ScenePicture.moc"
