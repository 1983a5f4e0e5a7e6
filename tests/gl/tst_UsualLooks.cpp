#include "gl/DrawingBench.h"

#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"

/// Scenes without the fields of physically based materials look as they always did: their pictures are compared with
/// those of a version that didn't have these fields.
class TestUsualLooks : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(m_bench.takeMessages(), QStringList()); }

    void theSceneLooksAsItAlwaysDid_data()
    {
        QTest::addColumn<NxRef<NxGroup>>("scene");
        QTest::newRow("highlights") << highlights();
        QTest::newRow("images") << images();
        QTest::newRow("translucent") << translucent();
        QTest::newRow("lines_and_points") << linesAndPoints();
        QTest::newRow("both_sides") << bothSides();
    }

    // With the variable ORVANE_NEW_PICTURES set, the pictures are written into the folder that it names.
    void theSceneLooksAsItAlwaysDid()
    {
        QFETCH(NxRef<NxGroup>, scene);
        const QString file = QLatin1String(QTest::currentDataTag()) + QLatin1String(".png");
        m_bench.drawing().setScene(scene.get());
        const QImage picture = m_bench.draw().convertToFormat(QImage::Format_RGB888);
        m_bench.drawing().setScene(nullptr);
        if (const QString folder = qEnvironmentVariable("ORVANE_NEW_PICTURES"); !folder.isEmpty())
            QVERIFY(picture.save(folder + QLatin1Char('/') + file));
        const QImage expected
            = QImage(QStringLiteral(ORVANE_REFERENCE_PICTURES "/") + file).convertToFormat(QImage::Format_RGB888);
        QCOMPARE(expected.size(), picture.size());
        int different = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                // The drivers of machines may round differently.
                different += isNear(picture.pixelColor(x, y), expected.pixelColor(x, y), 1) ? 0 : 1;
            }
        }
        QCOMPARE(different, 0);
    }

private:
    static NxRef<NxMaterial> shiny(const VbColor& diffuse, float shininess)
    {
        NxRef<NxMaterial> material = new NxMaterial;
        material->diffuseColor.setValue(diffuse);
        material->specularColor.setValue(VbColor(0.9F, 0.8F, 0.7F));
        material->shininess.setValue(shininess);
        material->emissiveColor.setValue(VbColor(0.1F, 0, 0.05F));
        return material;
    }

    static NxRef<NxMatrixTransform> moved(float x, float y, float width, NxNode* child)
    {
        NxRef<NxMatrixTransform> transform = new NxMatrixTransform;
        transform->matrix.setValue(VbMatrix(width, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, x, y, 0, 1));
        transform->addChild(child);
        return transform;
    }

    static NxRef<NxGroup> highlights()
    {
        const auto sun = make<NxDirectionalLight>();
        sun->direction.setValue(VbVec3f(-0.5F, -0.7F, -0.5F));
        const auto lamp = make<NxPointLight>();
        lamp->location.setValue(VbVec3f(0.9F, -0.9F, 1));
        lamp->color.setValue(VbColor(0.2F, 0.5F, 1));
        const auto spot = make<NxSpotLight>();
        spot->location.setValue(VbVec3f(0.4F, 0.4F, 2));
        spot->direction.setValue(VbVec3f(0, 0, -1));
        spot->cutOffAngle.setValue(0.2F);
        const auto small = ball(0.45F);
        return groupOf({sun.get(), lamp.get(), spot.get(), shiny(VbColor(0.7F, 0.4F, 0.1F), 0.5F).get(),
            moved(-0.5F, 0.5F, 1, small.get()).get(), shiny(VbColor(0.1F, 0.4F, 0.2F), 0.05F).get(),
            moved(0.5F, 0.5F, 1, small.get()).get(), make<NxMaterial>().get(),
            moved(-0.5F, -0.5F, 1, small.get()).get(), plain(0.3F, 0.6F, 0.9F).get(),
            moved(0.5F, -0.5F, 1, small.get()).get()});
    }

    static NxRef<NxGroup> images()
    {
        const auto colored = rectangle(-0.9F, -0.9F, -0.1F, 0.9F);
        colored->colors.setValues({{1, 0, 0, 1}, {0, 1, 0, 1}, {0, 0, 1, 1}, {1, 1, 1, 1}});
        return groupOf({plain(0.9F, 0.9F, 0.9F).get(), fourPixels().get(), rectangle(0.1F, -0.9F, 0.9F, 0.9F).get(),
            colored.get()});
    }

    static NxRef<NxGroup> translucent()
    {
        const auto glass = shiny(VbColor(0.2F, 0.5F, 0.8F), 0.6F);
        glass->transparency.setValue(0.6F);
        constexpr unsigned char bytes[] = {255, 0, 0, 255, 0, 255, 0, 60, 0, 0, 255, 160, 255, 255, 255, 0};
        const auto texture = make<NxTexture>();
        texture->image.setValue(VbVec2s(2, 2), 4, bytes);
        return groupOf({plain(0.9F, 0.8F, 0.2F).get(), rectangle(-0.9F, -0.3F, 0.9F, 0.3F, -1).get(), glass.get(),
            ball(0.6F).get(), texture.get(), rectangle(-0.2F, -0.9F, 0.4F, 0.9F, 0.8F).get()});
    }

    static NxRef<NxGroup> linesAndPoints()
    {
        const auto lines
            = meshOf({{-0.8F, -0.8F, 0}, {0.7F, 0.2F, 0}, {-0.6F, 0.9F, 0}, {0.8F, -0.5F, 0}}, NxMesh::LINES);
        const auto lit = meshOf({{-0.9F, 0, 0}, {0.9F, 0, 0}}, NxMesh::LINES);
        lit->normals.setValues({{0, 1, 0}, {0.5F, 0, 0.8F}});
        const auto points = meshOf({{-0.5F, -0.5F, 0}, {0, 0.5F, 0}, {0.5F, 0.5F, 0}}, NxMesh::POINTS);
        points->colors.setValues({{1, 1, 0, 1}, {0, 1, 1, 1}, {1, 0, 1, 1}});
        return groupOf({shiny(VbColor(0.6F, 0.9F, 0.3F), 0.4F).get(), lines.get(), lit.get(), points.get()});
    }

    // One triangle faces the viewer, one faces away, and their normals point either way.
    static NxRef<NxGroup> bothSides()
    {
        const auto flat = meshOf({{-0.9F, -0.9F, 0}, {-0.1F, -0.9F, 0.3F}, {-0.5F, -0.1F, 0}, {0.1F, -0.9F, 0},
                                     {0.5F, -0.1F, -0.2F}, {0.9F, -0.9F, 0}},
            NxMesh::TRIANGLES);
        const auto smooth = meshOf(
            {{-0.9F, 0.1F, 0}, {-0.1F, 0.1F, 0}, {-0.5F, 0.9F, 0}, {0.1F, 0.1F, 0}, {0.5F, 0.9F, 0}, {0.9F, 0.1F, 0}},
            NxMesh::TRIANGLES);
        smooth->normals.setValues(
            {{0.3F, 0, 0.9F}, {0, 0.3F, -0.9F}, {0, 0, 1}, {0.4F, 0, -0.8F}, {0, 0, -1}, {0.2F, 0.2F, -0.9F}});
        return groupOf({shiny(VbColor(0.5F, 0.5F, 0.9F), 0.2F).get(), flat.get(), smooth.get(),
            moved(0, 0, -0.3F, rectangle(-0.3F, -0.2F, 0.4F, 0.2F, 0.5F).get()).get()});
    }

    DrawingBench m_bench;
};

Q_DECLARE_METATYPE(NxRef<NxGroup>)
QTEST_APPLESS_MAIN(TestUsualLooks)
#include "tst_UsualLooks.moc"
