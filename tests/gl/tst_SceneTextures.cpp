#include "gl/DrawingBench.h"

#include "meridane/gl/gpu/NxImage.h"
#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxTexture.h"

namespace {

NxRef<NxComplexity> textureQuality(float quality)
{
    NxRef<NxComplexity> complexity = new NxComplexity;
    complexity->textureQuality.setValue(quality);
    return complexity;
}

} // namespace

/// How the images of textures get into a picture.
class TestSceneTextures : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(m_bench.takeMessages(), QStringList()); }

    void aTextureLiesOnTheSurface_data()
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

    void aTextureLiesOnTheSurface()
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
        const QImage picture
            = pictureOf({textureQuality(quality).get(), texture.get(), plain(1, 1, 1).get(), mesh.get()});
        COMPARE_PIXEL(picture, -0.5 - 0.125, -0.75, inner, 16);
        COMPARE_PIXEL(picture, 0.25, -0.75, beyond);
        if (quality > 0)
            COMPARE_PIXEL(picture, -0.75, 0.75, blue);
    }

    void aTextureComesFromItsFile()
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

    void aTextureIsPlainUntilItsFileIsLoaded()
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

    void theOpacityOfATextureCounts()
    {
        constexpr unsigned char pixel[] = {0, 255, 0, 128};
        const auto texture = make<NxTexture>();
        texture->image.setValue(VbVec2s(1, 1), 4, pixel);
        const auto front = groupOf({texture.get(), rectangle(-1, -1, 1, 1, 0.5F).get()});
        const auto back = groupOf({plain(1, 0, 0).get(), rectangle(-1, -1, 1, 1).get()});
        const QImage picture = pictureOf({plain(1, 1, 1).get(), front.get(), back.get()});
        COMPARE_PIXEL(picture, 0, 0, color(0.498, 0.502, 0));
    }

private:
    QImage pictureOf(std::initializer_list<NxNode*> nodes, const NxViewpoint& viewpoint = DrawingBench::front())
    {
        return m_bench.pictureOf(nodes, viewpoint);
    }

    DrawingBench m_bench;
};

QTEST_APPLESS_MAIN(TestSceneTextures)
#include "tst_SceneTextures.moc"
