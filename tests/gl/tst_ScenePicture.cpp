#include "gl/DrawingBench.h"

#include "meridane/gl/gpu/NxImage.h"
#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"
#include "meridane/scene/nodes/NxSwitch.h"
#include "meridane/scene/nodes/NxTexture.h"
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

NxRef<NxComplexity> textureQuality(float quality)
{
    NxRef<NxComplexity> complexity = new NxComplexity;
    complexity->textureQuality.setValue(quality);
    return complexity;
}

class TestScenePicture : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(m_bench.takeMessages(), QStringList()); }

    void aBallIsLitByTheCamera();
    void twoLightsAddUp();
    void aLightShinesOnWhatFollowsInItsGroup();
    void aLightThatIsOffLeavesTheAmbientPart();
    void aPointLightFades();
    void aSpotLightShinesIntoItsCone();
    void highlightsStandBesideTheDiffusePart();
    void flatTrianglesAreLitByTheirOwnNormals();
    void theFarSideOfASurfaceIsLitAsWell();
    void transparentThingsAreMixedFromBackToFront();
    void aTextureLiesOnTheSurface_data();
    void aTextureLiesOnTheSurface();
    void aTextureComesFromItsFile();
    void aTextureIsPlainUntilItsFileIsLoaded();
    void theOpacityOfATextureCounts();
    void perspectiveMakesDistantThingsSmall();
    void transformsAddUp();
    void aMatrixPlacesItsChildren();
    void aSwitchShowsOneChild_data();
    void aSwitchShowsOneChild();
    void aMaterialEndsWithItsGroup();
    void ignoredFieldsCountWithTheirDefault();
    void lowComplexityDrawsLessDetail_data();
    void lowComplexityDrawsLessDetail();

private:
    QImage pictureOf(std::initializer_list<NxNode*> nodes, const NxViewpoint& viewpoint = DrawingBench::front())
    {
        return m_bench.pictureOf(nodes, viewpoint);
    }

    DrawingBench m_bench;
};

void TestScenePicture::aBallIsLitByTheCamera()
{
    const QImage picture = pictureOf({plain(1, 1, 1).get(), ball(0.8F).get()});
    for (const double x : {-0.6, -0.3, 0.0, 0.3, 0.6}) {
        const double slope = std::sqrt(1 - x * x / 0.64);
        COMPARE_PIXEL(picture, x, 0, color(slope, slope, slope), 6);
    }
    COMPARE_PIXEL(picture, 0.9, 0, black);
}

void TestScenePicture::twoLightsAddUp()
{
    const QImage picture = pictureOf({sun(VbVec3f(2, 0, 0), VbColor(1, 0, 0)).get(),
        sun(VbVec3f(0, -1, 0), VbColor(0, 1, 0)).get(), plain(1, 1, 1).get(), ball(0.8F).get()});
    COMPARE_PIXEL(picture, -0.6, 0, color(0.75, 0, 0), 6);
    COMPARE_PIXEL(picture, 0, 0.6, color(0, 0.75, 0), 6);
    COMPARE_PIXEL(picture, -0.4, 0.4, color(0.5, 0.5, 0), 8);
    COMPARE_PIXEL(picture, 0.5, -0.2, black);
}

void TestScenePicture::aLightShinesOnWhatFollowsInItsGroup()
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

void TestScenePicture::aLightThatIsOffLeavesTheAmbientPart()
{
    const auto light = sun(VbVec3f(0, 0, -1), VbColor(1, 1, 1));
    light->on.setValue(false);
    const auto material = plain(1, 1, 1);
    material->ambientColor.setValue(VbColor(1, 0, 0));
    material->emissiveColor.setValue(VbColor(0, 0.5F, 0));
    const QImage picture = pictureOf({light.get(), material.get(), rectangle(-1, -1, 1, 1).get()});
    COMPARE_PIXEL(picture, 0, 0, color(0.2, 0.5, 0));
}

void TestScenePicture::aPointLightFades()
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

void TestScenePicture::aSpotLightShinesIntoItsCone()
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

void TestScenePicture::highlightsStandBesideTheDiffusePart()
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

void TestScenePicture::flatTrianglesAreLitByTheirOwnNormals()
{
    // Facing the viewer, and tilted by 60 degrees.
    const float depth = std::sqrt(3.0F);
    const auto mesh = meshOf({{-1, -1, 0}, {0, -1, 0}, {0, 1, 0}, {0, -1, 0}, {1, -1, -depth}, {0, 1, 0}}, 0);
    const QImage picture = pictureOf({plain(1, 1, 1).get(), mesh.get()});
    COMPARE_PIXEL(picture, -0.2, -0.5, white);
    COMPARE_PIXEL(picture, 0.2, -0.5, color(0.5, 0.5, 0.5));
}

void TestScenePicture::theFarSideOfASurfaceIsLitAsWell()
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

void TestScenePicture::transparentThingsAreMixedFromBackToFront()
{
    const auto opaque = rectangle(-1, -1, 1, 1, 0);
    const auto middle = rectangle(-1, -1, 0.5F, 1, 0.2F);
    const auto front = rectangle(-1, -1, 0, 1, 0.4F);
    const QImage picture = pictureOf({plain(0, 0, 1, 0.5F).get(), front.get(), plain(0, 1, 0, 0.5F).get(), middle.get(),
        plain(1, 0, 0).get(), opaque.get()});
    COMPARE_PIXEL(picture, -0.5, 0, color(0.25, 0.25, 0.5));
    COMPARE_PIXEL(picture, 0.25, 0, color(0.5, 0.5, 0));
    COMPARE_PIXEL(picture, 0.75, 0, red);
}

void TestScenePicture::aTextureLiesOnTheSurface_data()
{
    QTest::addColumn<float>("quality");
    QTest::addColumn<int>("wrap");
    QTest::addColumn<QColor>("inner"); // at a quarter of a pixel beside the border between red and green
    QTest::addColumn<QColor>("beyond");
    QTest::newRow("nearest pixels") << 0.1F << int{NxTexture::REPEAT} << red << red;
    QTest::newRow("smooth") << 0.5F << int{NxTexture::CLAMP} << color(0.75, 0.25, 0) << green;
    QTest::newRow("smooth in every way") << 1.0F << int{NxTexture::CLAMP} << color(0.75, 0.25, 0) << green;
    QTest::newRow("not at all") << 0.0F << int{NxTexture::REPEAT} << white << white;
}

void TestScenePicture::aTextureLiesOnTheSurface()
{
    QFETCH(float, quality);
    QFETCH(int, wrap);
    QFETCH(QColor, inner);
    QFETCH(QColor, beyond);
    const auto texture = fourPixels();
    texture->wrapS.setValue(wrap);
    texture->wrapT.setValue(NxTexture::CLAMP);
    const auto mesh = rectangle(-1, -1, 1, 1);
    mesh->textureCoordinates.setValues({{0, 0}, {2, 0}, {2, 1}, {0, 1}}); // twice as wide as the texture
    const QImage picture = pictureOf({textureQuality(quality).get(), texture.get(), plain(1, 1, 1).get(), mesh.get()});
    COMPARE_PIXEL(picture, -0.5 - 0.125, -0.75, inner, 16);
    COMPARE_PIXEL(picture, 0.25, -0.75, beyond);
    if (quality > 0)
        COMPARE_PIXEL(picture, -0.75, 0.75, blue);
}

void TestScenePicture::aTextureComesFromItsFile()
{
    QStringList paths;
    m_bench.drawing().setImageLoader([&paths](const std::string& path, NxImage& image, std::string&) {
        paths.append(QString::fromStdString(path));
        image = {1, 1, 2, {128, 255}}; // grey and opaque
        return NxImageState::Loaded;
    });
    const auto texture = make<NxTexture>();
    texture->filePath.setValue(VbString("wood.png"));
    const QImage picture = pictureOf({texture.get(), plain(1, 1, 1).get(), rectangle(-1, -1, 1, 1).get()});
    COMPARE_PIXEL(picture, 0, 0, QColor(128, 128, 128));
    QCOMPARE(paths, QStringList{QStringLiteral("wood.png")});
    m_bench.drawing().setImageLoader({});
}

void TestScenePicture::aTextureIsPlainUntilItsFileIsLoaded()
{
    NxImageState state = NxImageState::Pending;
    int asked = 0;
    m_bench.drawing().setImageLoader([&](const std::string&, NxImage& image, std::string&) {
        ++asked;
        image = {1, 1, 3, {0, 255, 0}};
        return state;
    });
    bool isChanged = false;
    const auto texture = make<NxTexture>();
    texture->filePath.setValue(VbString("wood.png"));
    const auto scene = groupOf({texture.get(), plain(1, 1, 1).get(), rectangle(-1, -1, 1, 1).get()});
    m_bench.drawing().setScene(scene.get());
    COMPARE_PIXEL(m_bench.draw(), 0, 0, white);
    COMPARE_PIXEL(m_bench.draw(), 0, 0, white);
    QCOMPARE(asked, 1);
    m_bench.drawing().setChangeHook([&] { isChanged = true; });
    m_bench.drawing().reloadImage("stone.png");
    QVERIFY(!isChanged);
    state = NxImageState::Loaded;
    m_bench.drawing().reloadImage("wood.png");
    QVERIFY(isChanged);
    COMPARE_PIXEL(m_bench.draw(), 0, 0, QColor(0, 255, 0));
    // What is being loaded once more stays as it is.
    state = NxImageState::Pending;
    m_bench.drawing().reloadImage("wood.png");
    COMPARE_PIXEL(m_bench.draw(), 0, 0, QColor(0, 255, 0));
    state = NxImageState::Withheld;
    m_bench.drawing().reloadImage("wood.png");
    COMPARE_PIXEL(m_bench.draw(), 0, 0, white);
    QCOMPARE(asked, 4);
    m_bench.drawing().setChangeHook({});
    m_bench.drawing().setScene(nullptr);
    m_bench.drawing().setImageLoader({});
}

void TestScenePicture::theOpacityOfATextureCounts()
{
    constexpr unsigned char pixel[] = {0, 255, 0, 128};
    const auto texture = make<NxTexture>();
    texture->image.setValue(VbVec2s(1, 1), 4, pixel);
    const auto front = groupOf({texture.get(), rectangle(-1, -1, 1, 1, 0.5F).get()});
    const auto back = groupOf({plain(1, 0, 0).get(), rectangle(-1, -1, 1, 1).get()});
    const QImage picture = pictureOf({plain(1, 1, 1).get(), front.get(), back.get()});
    COMPARE_PIXEL(picture, 0, 0, color(0.498, 0.502, 0));
}

void TestScenePicture::perspectiveMakesDistantThingsSmall()
{
    const auto mesh = rectangle(-0.4F, -0.4F, 0.4F, 0.4F, -5);
    const auto material = plain(1, 1, 1);
    COMPARE_PIXEL(pictureOf({material.get(), mesh.get()}), 0.35, 0, white);
    NxViewpoint viewpoint;
    viewpoint.heightAngle = 2 * std::atan(0.2F); // what is between -1 and 1, at the distance of 5 of the origin
    const QImage picture = pictureOf({material.get(), mesh.get()}, viewpoint);
    COMPARE_PIXEL(picture, 0.15, 0, white);
    COMPARE_PIXEL(picture, 0.25, 0, black);
}

void TestScenePicture::transformsAddUp()
{
    const auto inner = make<NxTransform>();
    inner->translation.setValue(VbVec3f(0.25F, 0.25F, 0));
    inner->addChild(rectangle(-0.1F, -0.1F, 0.1F, 0.1F).get());
    const auto outer = make<NxTransform>();
    outer->scaleFactor.setValue(VbVec3f(2, 1, 1));
    outer->rotation.setValue(VbRotation(VbVec3f(0, 0, 1), 1.5707963F));
    outer->addChild(inner.get());
    const QImage picture = pictureOf({plain(1, 0, 0).get(), outer.get()});
    COMPARE_PIXEL(picture, -0.25, 0.5, red); // (0.25, 0.25), stretched to (0.5, 0.25), turned to (-0.25, 0.5)
    COMPARE_PIXEL(picture, -0.25, 0.65, red);
    COMPARE_PIXEL(picture, -0.4, 0.5, black);
    COMPARE_PIXEL(picture, 0.25, 0.25, black);
}

void TestScenePicture::aMatrixPlacesItsChildren()
{
    const auto transform = make<NxMatrixTransform>();
    transform->matrix.setValue(VbMatrix(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0.5F, -0.5F, 0, 1));
    transform->addChild(rectangle(-0.1F, -0.1F, 0.1F, 0.1F).get());
    const QImage picture = pictureOf({plain(1, 0, 0).get(), transform.get()});
    COMPARE_PIXEL(picture, 0.5, -0.5, red);
    COMPARE_PIXEL(picture, 0, 0, black);
}

void TestScenePicture::aSwitchShowsOneChild_data()
{
    QTest::addColumn<int>("which");
    QTest::addColumn<QColor>("left");
    QTest::addColumn<QColor>("right");
    QTest::newRow("none") << int{NxSwitch::NONE} << black << black;
    QTest::newRow("all, the material as well") << int{NxSwitch::ALL} << red << red;
    QTest::newRow("the one on the left") << 1 << white << black;
    QTest::newRow("the one on the right") << 2 << black << white;
    QTest::newRow("beyond the last") << 3 << black << black;
    QTest::newRow("another negative number") << -2 << black << black;
}

void TestScenePicture::aSwitchShowsOneChild()
{
    QFETCH(int, which);
    QFETCH(QColor, left);
    QFETCH(QColor, right);
    const auto choice = make<NxSwitch>();
    choice->whichChild.setValue(which);
    choice->addChild(plain(1, 0, 0).get());
    choice->addChild(rectangle(-1, -1, 0, 1).get());
    choice->addChild(rectangle(0, -1, 1, 1).get());
    const QImage picture = pictureOf({plain(1, 1, 1).get(), choice.get()});
    COMPARE_PIXEL(picture, -0.5, 0, left);
    COMPARE_PIXEL(picture, 0.5, 0, right);
}

void TestScenePicture::aMaterialEndsWithItsGroup()
{
    const auto inner
        = groupOf({rectangle(-1, -1, -0.5F, 1).get(), plain(0, 1, 0).get(), rectangle(-0.5F, -1, 0, 1).get()});
    const auto last = rectangle(0.5F, -1, 1, 1);
    const QImage picture = pictureOf(
        {plain(1, 0, 0).get(), inner.get(), rectangle(0, -1, 0.5F, 1).get(), plain(0, 0, 1).get(), last.get()});
    COMPARE_PIXEL(picture, -0.75, 0, red);
    COMPARE_PIXEL(picture, -0.25, 0, green);
    COMPARE_PIXEL(picture, 0.25, 0, red);
    COMPARE_PIXEL(picture, 0.75, 0, blue);
}

void TestScenePicture::ignoredFieldsCountWithTheirDefault()
{
    const auto material = plain(1, 0, 0, 1);
    material->transparency.setIgnored(1);
    const auto transform = make<NxTransform>();
    transform->translation.setValue(VbVec3f(100, 0, 0));
    transform->translation.setIgnored(1);
    const auto mesh = rectangle(-1, -1, 1, 1);
    mesh->primitive.setValue(NxMesh::POINTS);
    mesh->primitive.setIgnored(1);
    transform->addChild(mesh.get());
    COMPARE_PIXEL(pictureOf({material.get(), transform.get()}), 0, 0, red);
    material->diffuseColor.setIgnored(1);
    COMPARE_PIXEL(pictureOf({material.get(), transform.get()}), 0, 0, color(0.8, 0.8, 0.8));
}

void TestScenePicture::lowComplexityDrawsLessDetail_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<float>("value");
    QTest::addColumn<float>("size"); // of the whole picture
    QTest::addColumn<bool>("isWhole");
    QTest::newRow("full") << int{NxComplexity::OBJECT_SPACE} << 1.0F << 2.0F << true;
    QTest::newRow("usual") << int{NxComplexity::OBJECT_SPACE} << 0.5F << 2.0F << true;
    QTest::newRow("low") << int{NxComplexity::OBJECT_SPACE} << 0.1F << 2.0F << false;
    QTest::newRow("least") << int{NxComplexity::OBJECT_SPACE} << 0.0F << 2.0F << false;
    QTest::newRow("large in the picture") << int{NxComplexity::SCREEN_SPACE} << 1.0F << 2.0F << true;
    QTest::newRow("small in the picture") << int{NxComplexity::SCREEN_SPACE} << 1.0F << 10.0F << false;
}

void TestScenePicture::lowComplexityDrawsLessDetail()
{
    QFETCH(int, type);
    QFETCH(float, value);
    QFETCH(float, size);
    QFETCH(bool, isWhole);
    const auto complexity = make<NxComplexity>();
    complexity->type.setValue(type);
    complexity->value.setValue(value);
    const auto mesh = ball(0.9F, 64);
    NxViewpoint viewpoint = DrawingBench::front();
    viewpoint.height = size;
    const QImage picture = pictureOf({complexity.get(), plain(1, 0, 0).get(), mesh.get()}, viewpoint);
    const auto all = static_cast<std::uint64_t>(mesh->indices.getNum());
    const std::uint64_t drawn = m_bench.counts().drawnCorners;
    QVERIFY(isWhole ? drawn == all : drawn > 0 && drawn < all / 4);
    const QColor middle = pixelAt(picture, 0, 0);
    QVERIFY2(middle.red() > 200, text(middle).constData());
    COMPARE_PIXEL(picture, 1, 1, black);
}

} // namespace

QTEST_APPLESS_MAIN(TestScenePicture)
#include "tst_ScenePicture.moc"
