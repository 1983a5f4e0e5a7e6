#include "gl/DrawingBench.h"

#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <cmath>

namespace {

NxRef<NxDirectionalLight> sun(const VbVec3f& direction, const VbColor& lightColor)
{
    NxRef<NxDirectionalLight> light = new NxDirectionalLight;
    light->direction.setValue(direction);
    light->color.setValue(lightColor);
    return light;
}

} // namespace

/// How lights and materials make the colours of a picture.
class TestSceneLights : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(m_bench.takeMessages(), QStringList()); }

    void aBallIsLitByTheCamera()
    {
        const QImage picture = pictureOf({plain(1, 1, 1).get(), ball(0.8F).get()});
        for (const double x : {-0.6, -0.3, 0.0, 0.3, 0.6}) {
            const double slope = std::sqrt(1 - x * x / 0.64);
            COMPARE_PIXEL(picture, x, 0, color(slope, slope, slope), 6);
        }
        COMPARE_PIXEL(picture, 0.9, 0, black);
    }

    void twoLightsAddUp()
    {
        const QImage picture = pictureOf({sun(VbVec3f(2, 0, 0), VbColor(1, 0, 0)).get(),
            sun(VbVec3f(0, -1, 0), VbColor(0, 1, 0)).get(), plain(1, 1, 1).get(), ball(0.8F).get()});
        COMPARE_PIXEL(picture, -0.6, 0, color(0.75, 0, 0), 6);
        COMPARE_PIXEL(picture, 0, 0.6, color(0, 0.75, 0), 6);
        COMPARE_PIXEL(picture, -0.4, 0.4, color(0.5, 0.5, 0), 8);
        COMPARE_PIXEL(picture, 0.5, -0.2, black);
    }

    void aLightShinesOnWhatFollowsInItsGroup()
    {
        const auto light = sun(VbVec3f(0, 0, -1), VbColor(0, 0, 1));
        const auto material = plain(1, 1, 1);
        const auto before = rectangle(-1, -1, -0.5F, 1);
        const auto after = rectangle(-0.5F, -1, 0, 1);
        const auto inner = groupOf({before.get(), light.get(), after.get()});
        const auto outside = rectangle(0, -1, 1, 1);
        const QImage picture = pictureOf({material.get(), inner.get(), outside.get()});
        COMPARE_PIXEL(picture, -0.75, 0, white); // by the camera
        COMPARE_PIXEL(picture, -0.25, 0, blue);
        COMPARE_PIXEL(picture, 0.5, 0, white);
    }

    void aLightThatIsOffLeavesTheAmbientPart()
    {
        const auto light = sun(VbVec3f(0, 0, -1), VbColor(1, 1, 1));
        light->on.setValue(false);
        const auto material = plain(1, 1, 1);
        material->ambientColor.setValue(VbColor(1, 0, 0));
        material->emissiveColor.setValue(VbColor(0, 0.5F, 0));
        const QImage picture = pictureOf({light.get(), material.get(), rectangle(-1, -1, 1, 1).get()});
        COMPARE_PIXEL(picture, 0, 0, color(0.2, 0.5, 0));
    }

    void aPointLightFades()
    {
        const auto light = make<NxPointLight>();
        light->location.setValue(VbVec3f(0, 0, 1));
        light->attenuation.setValue(VbVec3f(0, 0, 1));
        const auto placed = make<NxTransform>();
        placed->translation.setValue(VbVec3f(0, 0, 1));
        placed->addChild(light.get());
        placed->addChild(plain(1, 1, 1).get());
        placed->addChild(rectangle(-1, -1, 1, 1, -1).get());
        const QImage picture = pictureOf({placed.get()});
        COMPARE_PIXEL(picture, 0, 0, color(0.25, 0.25, 0.25)); // 2 away
        const double square = 4 + 0.64;
        const double share = 2 / std::sqrt(square) / square;
        COMPARE_PIXEL(picture, 0.8, 0, color(share, share, share));
    }

    void aSpotLightShinesIntoItsCone()
    {
        const auto light = make<NxSpotLight>();
        light->location.setValue(VbVec3f(0, 0, 1));
        light->cutOffAngle.setValue(0.5F);
        const auto mesh = rectangle(-1, -1, 1, 1);
        const auto material = plain(1, 1, 1);
        QImage picture = pictureOf({light.get(), material.get(), mesh.get()});
        const double slope = std::cos(std::atan(0.4));
        COMPARE_PIXEL(picture, 0, 0, white);
        COMPARE_PIXEL(picture, 0.4, 0, color(slope, slope, slope), 4);
        COMPARE_PIXEL(picture, 0.6, 0, black);

        light->dropOffRate.setValue(1);
        picture = pictureOf({light.get(), material.get(), mesh.get()});
        const double faded = slope * (0.5 - std::atan(0.4)) / 0.5;
        COMPARE_PIXEL(picture, 0.4, 0, color(faded, faded, faded), 6);
        COMPARE_PIXEL(picture, 0.6, 0, black);
    }

    void highlightsStandBesideTheDiffusePart()
    {
        const auto material = plain(0, 0, 0.5F);
        material->specularColor.setValue(VbColor(1, 0, 0));
        material->shininess.setValue(0.25F); // an exponent of 32
        const QImage picture = pictureOf({material.get(), ball(0.8F).get()});
        COMPARE_PIXEL(picture, 0, 0, color(1, 0, 0.5), 6);
        const double slope = std::sqrt(1 - 0.2 * 0.2 / 0.64);
        COMPARE_PIXEL(picture, 0.2, 0, color(std::pow(slope, 32), 0, 0.5 * slope), 12);
        COMPARE_PIXEL(picture, 0.7, 0, color(0, 0, 0.5 * std::sqrt(1 - 0.49 / 0.64)), 6);
    }

    void flatTrianglesAreLitByTheirOwnNormals()
    {
        // Facing the viewer, and tilted by 60 degrees.
        const float depth = std::sqrt(3.0F);
        const auto mesh = meshOf({{-1, -1, 0}, {0, -1, 0}, {0, 1, 0}, {0, -1, 0}, {1, -1, -depth}, {0, 1, 0}}, 0);
        const QImage picture = pictureOf({plain(1, 1, 1).get(), mesh.get()});
        COMPARE_PIXEL(picture, -0.2, -0.5, white);
        COMPARE_PIXEL(picture, 0.2, -0.5, color(0.5, 0.5, 0.5));
    }

    void theFarSideOfASurfaceIsLitAsWell()
    {
        const auto turned = make<NxTransform>();
        turned->rotation.setValue(VbRotation(VbVec3f(0, 1, 0), 3.1415927F));
        turned->addChild(rectangle(-1, -1, 1, 1).get());
        const auto mirrored = make<NxTransform>();
        mirrored->scaleFactor.setValue(VbVec3f(-1, 1, 1));
        mirrored->addChild(rectangle(-1, -1, 1, 1).get());
        const auto material = plain(1, 1, 1);
        COMPARE_PIXEL(pictureOf({material.get(), turned.get()}), 0, 0, white);
        COMPARE_PIXEL(pictureOf({material.get(), mirrored.get()}), 0, 0, white);
    }

private:
    QImage pictureOf(std::initializer_list<NxNode*> nodes, const NxViewpoint& viewpoint = DrawingBench::front())
    {
        return m_bench.pictureOf(nodes, viewpoint);
    }

    DrawingBench m_bench;
};

QTEST_APPLESS_MAIN(TestSceneLights)
#include "tst_SceneLights.moc"
