#include "gl/DrawingBench.h"

#include "meridane/gl/gpu/NxImage.h"
#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <limits>

namespace {

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float inf = std::numeric_limits<float>::infinity();

} // namespace

/// Scenes, numbers and viewpoints at the limits of what can be drawn, and beyond them.
class TestSceneLimits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aMillionNodesWithoutAMeshAreNoProblem()
    {
        const auto scene = make<NxGroup>();
        for (int i = 0; i < 1000; ++i) {
            const auto group = make<NxGroup>();
            for (int j = 0; j < 1000; ++j)
                group->addChild(j % 2 == 0 ? static_cast<NxNode*>(new NxGroup) : new NxMaterial);
            scene->addChild(group.get());
        }
        QCOMPARE(messagesOf(*scene), QStringList());
        QVERIFY(m_bench.drawing().bounds().isEmpty());
        COMPARE_PIXEL(m_picture, 0, 0, black);
        m_bench.drawing().setScene(nullptr);
    }

    void nestedGroupsAreNoProblem()
    {
        NxRef<NxGroup> scene = groupOf({plain(1, 0, 0).get(), rectangle(-1, -1, 1, 1).get()});
        const NxRef<NxGroup> innermost = scene;
        for (int depth = 0; depth < 100'000; ++depth)
            scene = groupOf({scene.get()});
        QCOMPARE(messagesOf(*scene), QStringList());
        COMPARE_PIXEL(m_picture, 0, 0, red);
        innermost->insertChild(plain(0, 1, 0).get(), 1);
        COMPARE_PIXEL(m_bench.draw(), 0, 0, green);
        m_bench.drawing().setScene(nullptr);
    }

    void placesWithoutEndAreLeftOut()
    {
        // Each group holds the one below twice: 2 to the 40 places.
        NxRef<NxGroup> scene = groupOf({make<NxMesh>().get()});
        for (int depth = 0; depth < 40; ++depth)
            scene = groupOf({scene.get(), scene.get()});
        const QStringList messages = messagesOf(*scene);
        QCOMPARE(messages.size(), 2);
        QVERIFY(messages.contains(
            QStringLiteral("The scene has more than 4000000 places of groups and meshes; the others aren't drawn")));
        m_bench.drawing().setScene(nullptr);
    }

    void strangeNumbersInLooksAndLightsAreNoProblem()
    {
        const auto material = plain(notANumber, 5, -1);
        material->shininess.setValue(notANumber);
        material->specularColor.setValue(VbColor(inf, -inf, notANumber));
        material->transparency.setValue(notANumber);
        const auto light = make<NxPointLight>();
        light->location.setValue(VbVec3f(notANumber, inf, 0));
        light->attenuation.setValue(VbVec3f(-1, notANumber, 0));
        light->intensity.setValue(inf);
        light->color.setValue(VbColor(notANumber, notANumber, notANumber));
        const auto other = make<NxTransform>();
        other->rotation.setValue(VbRotation(VbVec3f(0, 0, 0), 1));
        other->addChild(rectangle(-1, -1, 0, 1).get());
        const auto scene = groupOf({material.get(), rectangle(0, -1, 1, 1).get(), light.get(), other.get()});
        QCOMPARE(messagesOf(*scene), QStringList());
        const QColor lit = pixelAt(m_picture, 0.5, 0);
        QVERIFY2(lit.green() == 255 && lit.blue() == 0, text(lit).constData());
        COMPARE_PIXEL(m_picture, -0.5, 0, black);
    }

    void strangeViewpointsAndSizesAreNoProblem_data()
    {
        QTest::addColumn<VbVec3f>("position");
        QTest::addColumn<float>("distance");
        QTest::addColumn<float>("angle");
        QTest::newRow("inside") << VbVec3f() << 1.0F << 0.8F;
        QTest::newRow("turned away") << VbVec3f(0, 0, -5) << 1.0F << 0.8F;
        QTest::newRow("far away") << VbVec3f(0, 0, 1e30F) << 1e30F << 0.8F;
        QTest::newRow("nowhere") << VbVec3f(notANumber, notANumber, notANumber) << notANumber << notANumber;
        QTest::newRow("no angle") << VbVec3f(0, 0, 5) << 5.0F << 0.0F;
        QTest::newRow("all angles") << VbVec3f(0, 0, 5) << -5.0F << 7.0F;
    }

    void strangeViewpointsAndSizesAreNoProblem()
    {
        QFETCH(VbVec3f, position);
        QFETCH(float, distance);
        QFETCH(float, angle);
        const auto scene = groupOf({ball(0.5F).get(), plain(1, 0, 0, 0.5F).get(), rectangle(-1, -1, 1, 1).get()});
        m_bench.drawing().setScene(scene.get());
        m_bench.drawing().setSelectedNode(scene.get());
        m_bench.restyle([](NxDrawingStyle& style) { style.grid = style.axes = style.boundingBoxes = true; });
        NxViewpoint viewpoint;
        viewpoint.position = position;
        viewpoint.focalDistance = distance;
        viewpoint.heightAngle = angle;
        (void)m_bench.draw(viewpoint);
        viewpoint.projection = NxViewpoint::ORTHOGRAPHIC;
        (void)m_bench.draw(viewpoint, 1, 1);
        m_bench.drawing().draw(viewpoint, 0, 10, 1);
        m_bench.drawing().draw(viewpoint, -1, -1, notANumber);
        m_bench.restyle([](NxDrawingStyle& style) { style.grid = style.axes = style.boundingBoxes = false; });
        m_bench.drawing().setScene(nullptr);
        QCOMPARE(m_bench.takeMessages(), QStringList());
    }

    void tooManyLightsAreReportedOnce()
    {
        const auto scene = make<NxGroup>();
        for (int i = 0; i < 33; ++i) {
            const auto light = make<NxPointLight>();
            light->intensity.setValue(1.0F / 32);
            scene->addChild(light.get());
        }
        scene->addChild(plain(1, 1, 1).get());
        scene->addChild(rectangle(-0.05F, -0.05F, 0.05F, 0.05F).get());
        QCOMPARE(messagesOf(*scene),
            QStringList{QStringLiteral("PointLight: more than 32 lights shine on what follows; this one is left out")});
        COMPARE_PIXEL(m_picture, 0, 0, white);
    }

    void anImageThatIsTooLargeIsMadeSmaller()
    {
        constexpr int width = 32768;
        m_bench.drawing().setImageLoader([](const std::string&, NxImage& image, std::string&) {
            image = {width, 2, 1, std::vector<unsigned char>(std::size_t{width} * 2, 255)};
            std::fill_n(image.bytes.begin(), width / 2, 0); // black at the lower left
            return NxImageState::Loaded;
        });
        int most = 0;
        m_bench.gl().GetIntegerv(GL_MAX_TEXTURE_SIZE, &most);
        const auto texture = make<NxTexture>();
        texture->filePath.setValue(VbString("long.png"));
        const auto nearestPixels = make<NxComplexity>();
        nearestPixels->textureQuality.setValue(0.1F);
        const auto scene
            = groupOf({nearestPixels.get(), texture.get(), plain(0, 0, 1).get(), rectangle(-1, -1, 1, 1).get()});
        const QStringList messages = messagesOf(*scene);
        COMPARE_PIXEL(m_picture, -0.5, -0.6, black);
        COMPARE_PIXEL(m_picture, 0.5, -0.6, blue);
        COMPARE_PIXEL(m_picture, -0.5, 0.6, blue);
        if (most < width) {
            QCOMPARE(messages,
                QStringList(
                    QStringLiteral("Texture: its image of 32768 by 2 pixels is drawn smaller; the GPU takes %1 a side")
                        .arg(most)));
            QCOMPARE(m_bench.counts().textureBytes, static_cast<std::uint64_t>(2 * most));
        } else {
            QCOMPARE(messages, QStringList());
        }
        m_bench.drawing().setScene(nullptr);
        m_bench.drawing().setImageLoader({});
    }

private:
    /// The messages of two pictures of a scene.
    QStringList messagesOf(NxNode& scene)
    {
        m_bench.drawing().setScene(&scene);
        m_picture = m_bench.draw();
        (void)m_bench.draw();
        return m_bench.takeMessages();
    }

    DrawingBench m_bench;
    QImage m_picture;
};

QTEST_APPLESS_MAIN(TestSceneLimits)
#include "tst_SceneLimits.moc"
