#include "orvane/import/conversion/LightConversion.h"
#include "orvane/import/conversion/TransformConversion.h"

#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"

#include <QTest>

#include <cmath>
#include <numbers>

using namespace orvane;

namespace {

constexpr float rightAngle = std::numbers::pi_v<float> / 2;

bool isNear(const VbVec3f& left, const VbVec3f& right)
{
    return toAiVector(left).Equal(toAiVector(right), 1e-5F);
}

aiLight lightOf(aiLightSourceType type)
{
    aiLight light;
    light.mType = type;
    light.mColorDiffuse = aiColor3D(1, 1, 1);
    light.mPosition = aiVector3D(1, 0, 0);
    light.mDirection = aiVector3D(0, 0, -1);
    light.mAttenuationConstant = 1;
    light.mAttenuationLinear = 0;
    return light;
}

// A quarter turn about y, twice as large, moved up by ten.
aiMatrix4x4 transform()
{
    aiMatrix4x4 scale;
    aiMatrix4x4::Scaling({2, 2, 2}, scale);
    return rigidMatrix(VbRotation(VbVec3f(0, 1, 0), rightAngle), VbVec3f(0, 10, 0)) * scale;
}

template <typename Light>
NxRef<Light> convertedTo(const aiLight& light)
{
    return dynamic_cast<Light*>(toLight(light, transform()).get());
}

template <typename Light>
NxRef<Light> roundTrip(const Light& light)
{
    aiMatrix4x4 matrix;
    const std::unique_ptr<aiLight> foreign = toAiLight(light, matrix);
    return foreign == nullptr ? nullptr : dynamic_cast<Light*>(toLight(*foreign, matrix).get());
}

} // namespace

class TestLightConversion : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void lightsStandWhereTheirNodePutsThem()
    {
        const auto sun = convertedTo<NxDirectionalLight>(lightOf(aiLightSource_DIRECTIONAL));
        QVERIFY(sun);
        QVERIFY(isNear(sun->direction.getValue(), VbVec3f(-1, 0, 0)));
        const auto lamp = convertedTo<NxPointLight>(lightOf(aiLightSource_POINT));
        QVERIFY(lamp);
        QVERIFY(isNear(lamp->location.getValue(), VbVec3f(0, 10, -2)));
        const auto spot = convertedTo<NxSpotLight>(lightOf(aiLightSource_SPOT));
        QVERIFY(spot);
        QVERIFY(isNear(spot->location.getValue(), VbVec3f(0, 10, -2)));
        QVERIFY(isNear(spot->direction.getValue(), VbVec3f(-1, 0, 0)));
    }

    void colorAndIntensityComeApart_data()
    {
        QTest::addColumn<QVector<float>>("given");
        QTest::addColumn<QVector<float>>("color");
        QTest::addColumn<float>("intensity");
        QTest::newRow("white") << QVector<float>{1, 1, 1} << QVector<float>{1, 1, 1} << 1.0F;
        QTest::newRow("dim red") << QVector<float>{0.5F, 0.25F, 0} << QVector<float>{1, 0.5F, 0} << 0.5F;
        QTest::newRow("too bright") << QVector<float>{4, 2, 0} << QVector<float>{1, 0.5F, 0} << 1.0F;
        QTest::newRow("black") << QVector<float>{0, 0, 0} << QVector<float>{1, 1, 1} << 0.0F;
    }

    void colorAndIntensityComeApart()
    {
        QFETCH(QVector<float>, given);
        QFETCH(QVector<float>, color);
        QFETCH(float, intensity);
        aiLight light = lightOf(aiLightSource_DIRECTIONAL);
        light.mColorDiffuse = aiColor3D(given[0], given[1], given[2]);
        const NxRef<NxLight> result = toLight(light, aiMatrix4x4());
        QCOMPARE(result->color.getValue(), VbColor(color[0], color[1], color[2]));
        QCOMPARE(result->intensity.getValue(), intensity);
    }

    void aStrongPointLightReachesFarther()
    {
        aiLight light = lightOf(aiLightSource_POINT);
        light.mColorDiffuse = aiColor3D(100, 100, 100);
        light.mAttenuationConstant = 0;
        light.mAttenuationQuadratic = 1;
        const auto lamp = convertedTo<NxPointLight>(light);
        QVERIFY(isNear(lamp->attenuation.getValue(), VbVec3f(0, 0, 0.01F)));
        light.mAttenuationQuadratic = 0;
        QVERIFY2(
            convertedTo<NxPointLight>(light)->attenuation.isDefault(), "a light that never fades keeps the default");
    }

    void aSpotLightKeepsItsCone()
    {
        aiLight light = lightOf(aiLightSource_SPOT);
        light.mAngleOuterCone = 1;
        light.mAngleInnerCone = 0.75F;
        const auto spot = convertedTo<NxSpotLight>(light);
        QCOMPARE(spot->cutOffAngle.getValue(), 1.0F);
        QCOMPARE(spot->dropOffRate.getValue(), 0.25F);
        light.mAngleOuterCone = 3;
        QCOMPARE(convertedTo<NxSpotLight>(light)->cutOffAngle.getValue(), rightAngle);
    }

    void anAreaShinesToItsFront()
    {
        const auto spot = convertedTo<NxSpotLight>(lightOf(aiLightSource_AREA));
        QVERIFY(spot);
        QCOMPARE(spot->cutOffAngle.getValue(), rightAngle);
        QCOMPARE(spot->dropOffRate.getValue(), 1.0F);
    }

    void lightFromNowhereIsLeftOut()
    {
        QVERIFY(!toLight(lightOf(aiLightSource_AMBIENT), aiMatrix4x4()));
        QVERIFY(!toLight(lightOf(aiLightSource_UNDEFINED), aiMatrix4x4()));
    }

    void lightsComeBackAsTheyWere()
    {
        const NxRef<NxDirectionalLight> sun = new NxDirectionalLight;
        sun->direction.setValue(1, 0, 0);
        sun->color.setValue(VbColor(1, 0.5F, 0.25F));
        sun->intensity.setValue(0.5F);
        const auto sameSun = roundTrip(*sun);
        QVERIFY(sameSun && isNear(sameSun->direction.getValue(), sun->direction.getValue()));
        QCOMPARE(sameSun->color.getValue(), sun->color.getValue());
        QCOMPARE(sameSun->intensity.getValue(), 0.5F);

        const NxRef<NxPointLight> lamp = new NxPointLight;
        lamp->location.setValue(1, 2, 3);
        lamp->attenuation.setValue(1, 0.5F, 0.25F);
        const auto sameLamp = roundTrip(*lamp);
        QVERIFY(sameLamp && isNear(sameLamp->location.getValue(), VbVec3f(1, 2, 3)));
        QCOMPARE(sameLamp->attenuation.getValue(), lamp->attenuation.getValue());

        const NxRef<NxSpotLight> spot = new NxSpotLight;
        spot->location.setValue(1, 2, 3);
        spot->direction.setValue(0, -1, 0);
        spot->dropOffRate.setValue(0.5F);
        const auto sameSpot = roundTrip(*spot);
        QVERIFY(sameSpot && isNear(sameSpot->direction.getValue(), VbVec3f(0, -1, 0)));
        QVERIFY(isNear(sameSpot->location.getValue(), VbVec3f(1, 2, 3)));
        QCOMPARE(sameSpot->cutOffAngle.getValue(), spot->cutOffAngle.getValue());
        QCOMPARE(sameSpot->dropOffRate.getValue(), 0.5F);
    }
};

QTEST_GUILESS_MAIN(TestLightConversion)
#include "tst_LightConversion.moc"
