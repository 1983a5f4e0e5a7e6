#include "gl/DrawingBench.h"

#include "meridane/gl/NxRayPick.h"
#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxMatrixTransform.h"

#include <array>
#include <cmath>

namespace {

NxRef<NxTexture> onePixel(unsigned char r, unsigned char g, unsigned char b, NxTexture::Role role)
{
    const unsigned char bytes[] = {r, g, b};
    NxRef<NxTexture> texture = new NxTexture;
    texture->image.setValue(VbVec2s(1, 1), 3, bytes);
    texture->role.setValue(role);
    return texture;
}

NxRef<NxDirectionalLight> from(float x, float y, float z)
{
    NxRef<NxDirectionalLight> light = new NxDirectionalLight;
    light->direction.setValue(VbVec3f(-x, -y, -z));
    return light;
}

/// How much of the light from the eye a surface that faces it reflects like a mirror.
double mirrored(double reflectance, double roughness)
{
    const double width = roughness * roughness;
    return reflectance * (0.25 / (width * width) + 0.5);
}

NxRef<NxMatrixTransform> mirrorOf(NxNode* child)
{
    NxRef<NxMatrixTransform> transform = new NxMatrixTransform;
    transform->matrix.setValue(VbMatrix(-1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1));
    transform->addChild(child);
    return transform;
}

} // namespace

/// How metalness, roughness, maps, cut-off and sides of materials get into a picture.
class TestPhysicalLooks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(m_bench.takeMessages(), QStringList()); }

    void aMetalReflectsInItsColour()
    {
        const auto metal = plain(1, 0.5F, 0);
        metal->metalness.setValue(1);
        const QImage picture = pictureOf({metal.get(), rectangle(-1, -1, 1, 1).get()});
        COMPARE_PIXEL(picture, 0, 0, color(0.75, 0.375, 0));
    }

    void aRoughSurfaceHasAWideHighlight_data()
    {
        QTest::addColumn<float>("roughness");
        QTest::newRow("dull") << 0.9F;
        QTest::newRow("satin") << 0.7F;
        QTest::newRow("polished") << 0.5F;
    }

    void aRoughSurfaceHasAWideHighlight()
    {
        QFETCH(float, roughness);
        const auto plastic = plain(0.2F, 0.1F, 0.3F);
        plastic->roughness.setValue(roughness);
        const double light = mirrored(0.04, static_cast<double>(roughness));
        const QImage picture = pictureOf({plastic.get(), rectangle(-1, -1, 1, 1).get()});
        COMPARE_PIXEL(picture, 0, 0, color(0.2 + light, 0.1 + light, 0.3 + light));
    }

    void theHighlightOfASmoothBallIsSmallerThanThatOfARoughOne()
    {
        const auto width = [this](float roughness) {
            const auto material = plain(0, 0, 0);
            material->roughness.setValue(roughness);
            const QImage picture = pictureOf({from(0, 0, 1).get(), material.get(), ball(0.9F).get()});
            int lit = 0;
            const int brightest = picture.pixelColor(picture.width() / 2, picture.height() / 2).red();
            for (int x = 0; x < picture.width(); ++x)
                lit += 2 * picture.pixelColor(x, picture.height() / 2).red() > brightest ? 1 : 0;
            return lit;
        };
        const int polished = width(0.4F);
        const int satin = width(0.6F);
        QVERIFY(polished > 2);
        QVERIFY2(satin > polished + 4, qPrintable(QString::number(satin)));
    }

    void theDefaultsLeaveTheUsualLook()
    {
        const auto shiny = make<NxMaterial>();
        shiny->specularColor.setValue(VbColor(0.7F, 0.7F, 0.2F));
        const auto scene = ball(0.8F);
        const QImage usual = pictureOf({shiny.get(), scene.get()});
        shiny->metalness.setValue(0.6F);
        shiny->roughness.setValue(0.3F);
        QVERIFY(pictureOf({shiny.get(), scene.get()}) != usual);
        shiny->metalness.setIgnored(true);
        shiny->roughness.setIgnored(true);
        QCOMPARE(pictureOf({shiny.get(), scene.get()}), usual);
    }

    void aMapOfMetalnessAndRoughnessIsMultiplied()
    {
        const auto material = plain(0.4F, 0.2F, 0);
        material->metalness.setValue(1);
        const auto surface = rectangle(-1, -1, 1, 1);
        const auto map = onePixel(0, 179, 0, NxTexture::METAL_ROUGHNESS); // no metal, and 0.7
        const double light = mirrored(0.04, 0.702);
        COMPARE_PIXEL(
            pictureOf({material.get(), map.get(), surface.get()}), 0, 0, color(0.4 + light, 0.2 + light, light));
        const auto other = onePixel(0, 255, 255, NxTexture::METAL_ROUGHNESS);
        COMPARE_PIXEL(pictureOf({material.get(), map.get(), other.get(), surface.get()}), 0, 0, color(0.3, 0.15, 0));
    }

    void aNormalMapTurnsTheNormals_data()
    {
        QTest::addColumn<VbVec3f>("light"); // where it comes from
        QTest::addColumn<bool>("isTurned"); // the texture coordinates run leftwards and downwards
        QTest::addColumn<double>("slope");
        // The normal of the map is (0.6, 0, 0.8).
        QTest::newRow("from the viewer") << VbVec3f(0, 0, 1) << false << 0.8;
        QTest::newRow("from the right") << VbVec3f(1, 0, 0) << false << 0.6;
        QTest::newRow("from the left") << VbVec3f(-1, 0, 0) << false << 0.0;
        QTest::newRow("from the left, turned") << VbVec3f(-1, 0, 0) << true << 0.6;
        QTest::newRow("from the right, turned") << VbVec3f(1, 0, 0) << true << 0.0;
    }

    void aNormalMapTurnsTheNormals()
    {
        QFETCH(VbVec3f, light);
        QFETCH(bool, isTurned);
        QFETCH(double, slope);
        const auto surface = rectangle(-1, -1, 1, 1);
        if (isTurned)
            surface->textureCoordinates.setValues({{1, 1}, {0, 1}, {0, 0}, {1, 0}});
        const auto map = onePixel(204, 128, 230, NxTexture::NORMAL);
        const QImage picture
            = pictureOf({from(light[0], light[1], light[2]).get(), plain(1, 1, 1).get(), map.get(), surface.get()});
        COMPARE_PIXEL(picture, 0, 0, color(slope, slope, slope), 4);
        // The same without normals at the corners.
        surface->normals.setValues(std::vector<VbVec3f>());
        const QImage flat
            = pictureOf({from(light[0], light[1], light[2]).get(), plain(1, 1, 1).get(), map.get(), surface.get()});
        COMPARE_PIXEL(flat, 0, 0, color(slope, slope, slope), 4);
    }

    void aNormalMapPointsUpwardsWithItsGreen()
    {
        const auto map = onePixel(128, 204, 230, NxTexture::NORMAL);
        const QImage picture
            = pictureOf({from(0, 1, 0).get(), plain(1, 1, 1).get(), map.get(), rectangle(-1, -1, 1, 1).get()});
        COMPARE_PIXEL(picture, 0, 0, color(0.6, 0.6, 0.6), 4);
    }

    void aMapNeedsTextureCoordinatesAndQuality()
    {
        const auto surface = rectangle(-1, -1, 1, 1);
        surface->textureCoordinates.setValues(std::vector<VbVec2f>());
        const auto map = onePixel(204, 128, 230, NxTexture::NORMAL);
        const QImage picture = pictureOf({from(1, 0, 1).get(), plain(1, 1, 1).get(), map.get(), surface.get()});
        COMPARE_PIXEL(picture, 0, 0, color(std::sqrt(0.5), std::sqrt(0.5), std::sqrt(0.5)));
    }

    void texturesOfDifferentRolesApplyTogether()
    {
        const auto image = onePixel(255, 128, 0, NxTexture::COLOR);
        const auto bumps = onePixel(204, 128, 230, NxTexture::NORMAL);
        const auto surface = onePixel(0, 255, 0, NxTexture::METAL_ROUGHNESS);
        const auto metal = plain(1, 1, 1);
        metal->metalness.setValue(1);
        const QImage picture = pictureOf(
            {from(1, 0, 0).get(), metal.get(), image.get(), bumps.get(), surface.get(), rectangle(-1, -1, 1, 1).get()});
        const QColor shown = pixelAt(picture, 0, 0);
        // Not a metal after all, as the map says; nearly 0.6 of the image.
        QVERIFY2(
            shown.red() > 150 && shown.red() < 175 && shown.green() > 75 && shown.green() < 100 && shown.blue() < 25,
            text(shown).constData());
    }

    void anotherRoleIsFollowed()
    {
        const auto first = onePixel(255, 0, 0, NxTexture::COLOR);
        const auto second = onePixel(128, 128, 255, NxTexture::COLOR);
        const auto third = onePixel(0, 255, 0, NxTexture::COLOR);
        const auto scene = groupOf({plain(1, 1, 1).get(), first.get(),
            groupOf({second.get(), third.get(), rectangle(-1, -1, 1, 1).get()}).get()});
        m_bench.drawing().setScene(scene.get());
        int asked = 0;
        m_bench.drawing().setChangeHook([&asked] { ++asked; });
        COMPARE_PIXEL(m_bench.draw(), 0, 0, green);
        third->role.setValue(NxTexture::NORMAL); // a slanted normal; the second one gives the colour
        COMPARE_PIXEL(m_bench.drawUntold(), 0, 0, black, 255);
        third->image.setValue(VbVec2s(1, 1), 3, std::array<unsigned char, 3>{128, 128, 255}.data());
        COMPARE_PIXEL(m_bench.drawUntold(), 0, 0, QColor(128, 128, 255));
        third->role.setValue(7); // unknown
        COMPARE_PIXEL(m_bench.draw(), 0, 0, QColor(128, 128, 255));
        third->role.setValue(NxTexture::NORMAL);
        QCOMPARE(m_bench.draw().isNull(), false);
        const int before = asked;
        // The first one isn't used by anything, but it would be if the second one made room.
        second->role.setValue(NxTexture::METAL_ROUGHNESS);
        first->role.setValue(NxTexture::NORMAL);
        first->role.setValue(NxTexture::COLOR);
        const QImage picture = m_bench.draw();
        QVERIFY(asked > before);
        QVERIFY2(pixelAt(picture, 0, 0).green() < 60 && pixelAt(picture, 0, 0).red() > 200,
            text(pixelAt(picture, 0, 0)).constData());
        m_bench.drawing().setChangeHook({});
        m_bench.drawing().setScene(nullptr);
    }

    void aReplacedTextureIsUsedAgainWithAnotherRole()
    {
        const auto first = onePixel(204, 128, 230, NxTexture::COLOR);
        const auto second = onePixel(255, 255, 255, NxTexture::COLOR);
        const auto scene = groupOf(
            {from(1, 0, 0).get(), plain(1, 1, 1).get(), first.get(), second.get(), rectangle(-1, -1, 1, 1).get()});
        m_bench.drawing().setScene(scene.get());
        COMPARE_PIXEL(m_bench.draw(), 0, 0, black);
        first->role.setValue(NxTexture::NORMAL);
        COMPARE_PIXEL(m_bench.drawUntold(), 0, 0, color(0.6, 0.6, 0.6), 4);
        m_bench.drawing().setScene(nullptr);
    }

    void whatIsLessOpaqueThanTheCutOffIsNotDrawn()
    {
        constexpr unsigned char bytes[] = {255, 0, 0, 60, 0, 255, 0, 200};
        const auto image = make<NxTexture>();
        image->image.setValue(VbVec2s(2, 1), 4, bytes);
        const auto nearest = make<NxComplexity>();
        nearest->textureQuality.setValue(0.1F);
        const auto material = plain(1, 1, 1);
        material->alphaCutoff.setValue(0.5F);
        const auto wall = rectangle(-1, -1, 1, 1, -0.5F);
        const auto leaf = groupOf({nearest.get(), image.get(), material.get(), rectangle(-1, -1, 1, 1).get()});
        const QImage picture = pictureOf({leaf.get(), plain(0, 0, 1).get(), wall.get()});
        COMPARE_PIXEL(picture, -0.5, 0, blue);
        COMPARE_PIXEL(picture, 0.5, 0, green);
    }

    void oneSideIsSeenOnlyIfTheMaterialSaysSo_data()
    {
        QTest::addColumn<bool>("isTurned");
        QTest::addColumn<bool>("isMirrored");
        QTest::addColumn<float>("transparency");
        QTest::addColumn<bool>("isSeen");
        QTest::newRow("front") << false << false << 0.0F << true;
        QTest::newRow("back") << true << false << 0.0F << false;
        QTest::newRow("front, mirrored") << false << true << 0.0F << true;
        QTest::newRow("back, mirrored") << true << true << 0.0F << false;
        QTest::newRow("front, translucent") << false << false << 0.5F << true;
        QTest::newRow("back, translucent") << true << false << 0.5F << false;
    }

    void oneSideIsSeenOnlyIfTheMaterialSaysSo()
    {
        QFETCH(bool, isTurned);
        QFETCH(bool, isMirrored);
        QFETCH(float, transparency);
        QFETCH(bool, isSeen);
        const auto material = plain(1, 1, 1, transparency);
        material->doubleSided.setValue(0);
        const auto surface = rectangle(-1, -1, 1, 1);
        if (isTurned)
            surface->indices.setValues({0, 2, 1, 0, 3, 2});
        NxRef<NxNode> node = surface.get();
        if (isMirrored)
            node = mirrorOf(surface.get()).get();
        const QColor full = transparency > 0 ? QColor(128, 128, 128) : white;
        COMPARE_PIXEL(pictureOf({material.get(), node.get()}), 0, 0, isSeen ? full : black);
        const NxRayPick pick({VbVec3d(0.1, 0.2, 5), VbVec3f(0, 0, -1)});
        QCOMPARE(pick.pick(*groupOf({material.get(), node.get()})).has_value(), isSeen);
        material->doubleSided.setValue(1);
        COMPARE_PIXEL(pictureOf({material.get(), node.get()}), 0, 0, full);
        QVERIFY(pick.pick(*groupOf({material.get(), node.get()})).has_value());
    }

    void linesAndOtherMaterialsAreSeenFromAllSides()
    {
        const auto oneSided = plain(1, 0, 0);
        oneSided->doubleSided.setValue(0);
        const auto turned = rectangle(-1, -1, 0, 1);
        turned->indices.setValues({0, 2, 1, 0, 3, 2});
        const auto other = rectangle(0, -1, 1, 1);
        other->indices.setValues({0, 2, 1, 0, 3, 2});
        const QImage picture = pictureOf({oneSided.get(), turned.get(),
            meshOf({{-1, 0.01F, 0.1F}, {0, 0.01F, 0.1F}}, NxMesh::LINES).get(), plain(0, 1, 0).get(), other.get()});
        COMPARE_PIXEL(picture, -0.5, 0.5, black);
        COMPARE_PIXEL(picture, -0.5, 0.01, red);
        COMPARE_PIXEL(picture, 0.5, 0.5, green);
    }

private:
    QImage pictureOf(std::initializer_list<NxNode*> nodes) { return m_bench.pictureOf(nodes); }

    DrawingBench m_bench;
};

QTEST_APPLESS_MAIN(TestPhysicalLooks)
#include "tst_PhysicalLooks.moc"
