#include "gl/DrawingBench.h"

#include "meridane/gl/geometry/NxViewpoint.h"
#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <cmath>

/// Pictures that show something else than the scene in its light.
class TestDisplayModes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        m_bench.drawing().setScene(nullptr);
        m_bench.restyle([](NxDrawingStyle& style) {
            const NxDrawingStyle usual;
            style.shading = usual.shading;
            style.surfaces = usual.surfaces;
            style.wires = usual.wires;
            style.headLight = usual.headLight;
            style.section = usual.section;
        });
        QCOMPARE(m_bench.takeMessages(), QStringList());
    }

    void unlitSurfacesHaveTheirOwnColor()
    {
        const NxRef<NxMaterial> material = plain(0.2F, 0.4F, 0.6F);
        const NxRef<NxMesh> mesh = ball(0.9F);
        show(NxDrawingStyle::UNLIT);
        const QImage picture = m_bench.pictureOf({material.get(), mesh.get()});
        COMPARE_PIXEL(picture, 0, 0, color(0.2, 0.4, 0.6));
        COMPARE_PIXEL(picture, 0.6, 0.5, color(0.2, 0.4, 0.6));
    }

    void unlitSurfacesHaveTheirTexture()
    {
        const NxRef<NxTexture> texture = fourPixels();
        const NxRef<NxMesh> mesh = rectangle(-1, -1, 1, 1);
        const NxRef<NxMaterial> material = plain(1, 1, 1);
        show(NxDrawingStyle::UNLIT);
        const QImage picture = m_bench.pictureOf({material.get(), texture.get(), mesh.get()});
        COMPARE_PIXEL(picture, -0.5, -0.5, red);
        COMPARE_PIXEL(picture, 0.5, -0.5, green);
        COMPARE_PIXEL(picture, -0.5, 0.5, blue);
    }

    void translucentSurfacesStayTranslucentWithoutLight()
    {
        const NxRef<NxMaterial> back = plain(1, 0, 0);
        const NxRef<NxMesh> far = rectangle(-1, -1, 1, 1, -0.5F);
        const NxRef<NxMaterial> front = plain(0, 0, 1, 0.5F);
        const NxRef<NxMesh> near = rectangle(-0.5F, -0.5F, 0.5F, 0.5F);
        show(NxDrawingStyle::UNLIT);
        const QImage picture = m_bench.pictureOf({back.get(), far.get(), front.get(), near.get()});
        COMPARE_PIXEL(picture, 0, 0, color(0.5, 0, 0.5));
        COMPARE_PIXEL(picture, 0.8, 0, red);
    }

    void normalsAreColors()
    {
        const NxRef<NxMesh> mesh = ball(0.9F);
        show(NxDrawingStyle::NORMALS);
        const QImage picture = m_bench.pictureOf({mesh.get()});
        COMPARE_PIXEL(picture, 0, 0, color(0.5, 0.5, 1), 6);
        const double half = 0.9 * std::sqrt(0.5);
        COMPARE_PIXEL(picture, half, 0, color(0.5 + 0.5 * std::sqrt(0.5), 0.5, 0.5 + 0.5 * std::sqrt(0.5)), 12);
        COMPARE_PIXEL(picture, 0, half, color(0.5, 0.5 + 0.5 * std::sqrt(0.5), 0.5 + 0.5 * std::sqrt(0.5)), 12);
    }

    void normalsAreThoseInTheScene()
    {
        const NxRef<NxMesh> mesh = rectangle(-1, -1, 1, 1);
        mesh->normals.setValues(std::vector<VbVec3f>(4, VbVec3f(0, 0, 1)));
        const NxRef<NxTransform> turned = make<NxTransform>();
        turned->rotation.setValue(VbRotation(VbVec3f(0, 1, 0), 0.5F));
        turned->addChild(mesh.get());
        show(NxDrawingStyle::NORMALS);
        const QImage picture = m_bench.pictureOf({turned.get()});
        COMPARE_PIXEL(picture, 0, 0, color(0.5 + 0.5 * std::sin(0.5), 0.5, 0.5 + 0.5 * std::cos(0.5)));
    }

    void wrongNormalsAreSeen()
    {
        const NxRef<NxMesh> mesh = rectangle(-1, -1, 1, 1);
        mesh->normals.setValues(std::vector<VbVec3f>(4, VbVec3f(0, 0, -1)));
        show(NxDrawingStyle::NORMALS);
        COMPARE_PIXEL(m_bench.pictureOf({mesh.get()}), 0, 0, color(0.5, 0.5, 0));
        // Triangles without normals show their own.
        mesh->normals.setValues(std::vector<VbVec3f>());
        COMPARE_PIXEL(m_bench.pictureOf({mesh.get()}), 0, 0, color(0.5, 0.5, 1));
    }

    void textureCoordinatesAreAChecker()
    {
        const NxRef<NxMesh> mesh = rectangle(-1, -1, 1, 1); // coordinates from 0 to 1
        show(NxDrawingStyle::CHECKER);
        const QImage picture = m_bench.pictureOf({mesh.get()});
        const auto expected = [](double u, double v, double light) {
            return color((0.25 + 0.75 * u) * light, (0.25 + 0.75 * v) * light, 0.6 * light);
        };
        for (const auto& [column, row] : {std::pair(0, 0), std::pair(1, 0), std::pair(0, 1), std::pair(5, 2)}) {
            const double u = (column + 0.5) / 8;
            const double v = (row + 0.5) / 8;
            const double light = (column + row) % 2 == 0 ? 0.6 : 1;
            COMPARE_PIXEL(picture, 2 * u - 1, 2 * v - 1, expected(u, v, light), 5);
        }
    }

    void vertexColorsAreShownAlone()
    {
        const NxRef<NxMesh> mesh = rectangle(-1, -1, 1, 1);
        const NxRef<NxTexture> texture = fourPixels();
        mesh->colors.setValues(std::vector<VbVec4f>(4, VbVec4f(1, 0.5F, 0, 0.25F)));
        show(NxDrawingStyle::VERTEX_COLORS);
        const QImage picture = m_bench.pictureOf({texture.get(), mesh.get()});
        COMPARE_PIXEL(picture, -0.5, -0.5, color(1, 0.5, 0));
        COMPARE_PIXEL(picture, 0.5, 0.5, color(1, 0.5, 0));
    }

    void whatAMeshDoesNotHaveIsGrey_data()
    {
        QTest::addColumn<int>("shading");
        QTest::newRow("texture coordinates") << int{NxDrawingStyle::CHECKER};
        QTest::newRow("colors") << int{NxDrawingStyle::VERTEX_COLORS};
    }
    void whatAMeshDoesNotHaveIsGrey()
    {
        QFETCH(const int, shading);
        const NxRef<NxMesh> mesh = rectangle(-1, -1, 1, 1);
        mesh->textureCoordinates.setValues(std::vector<VbVec2f>());
        const NxRef<NxMaterial> material = plain(1, 0, 0, 0.5F);
        show(static_cast<NxDrawingStyle::Shading>(shading));
        COMPARE_PIXEL(m_bench.pictureOf({material.get(), mesh.get()}), 0.3, 0.2, color(0.5, 0.5, 0.5));
    }

    void theLightComesBack()
    {
        const NxRef<NxMaterial> material = plain(0, 1, 0);
        const NxRef<NxMesh> mesh = rectangle(-1, -1, 1, 1);
        const QImage before = m_bench.pictureOf({material.get(), mesh.get()});
        for (const auto shading :
            {NxDrawingStyle::UNLIT, NxDrawingStyle::NORMALS, NxDrawingStyle::CHECKER, NxDrawingStyle::VERTEX_COLORS}) {
            show(shading);
            static_cast<void>(m_bench.pictureOf({material.get(), mesh.get()}));
            show(NxDrawingStyle::SHADED);
            QCOMPARE(m_bench.pictureOf({material.get(), mesh.get()}), before);
        }
    }

    void aHeadLightLightsWhatTheSceneLightsFromBehind()
    {
        const NxRef<NxDirectionalLight> light = make<NxDirectionalLight>();
        light->direction.setValue(VbVec3f(0, 0, 1)); // from behind
        const NxRef<NxMaterial> material = plain(1, 1, 1);
        const NxRef<NxMesh> mesh = rectangle(-1, -1, 1, 1);
        COMPARE_PIXEL(m_bench.pictureOf({light.get(), material.get(), mesh.get()}), 0, 0, black);
        m_bench.restyle([](NxDrawingStyle& style) { style.headLight = true; });
        COMPARE_PIXEL(m_bench.pictureOf({light.get(), material.get(), mesh.get()}), 0, 0, white);
        m_bench.restyle([](NxDrawingStyle& style) { style.headLight = false; });
        COMPARE_PIXEL(m_bench.pictureOf({light.get(), material.get(), mesh.get()}), 0, 0, black);
    }

    void wiresAreDrawnOverSurfaces()
    {
        const NxRef<NxMaterial> material = plain(1, 1, 1);
        const NxRef<NxMesh> mesh = rectangle(-0.8F, -0.8F, 0.8F, 0.8F);
        const NxRef<NxMesh> hidden = rectangle(-0.4F, -0.4F, 0.4F, 0.4F, -0.5F);
        m_bench.restyle([](NxDrawingStyle& style) {
            style.wires = true;
            style.wireColor = VbColor(1, 0, 0);
        });
        const QImage picture = m_bench.pictureOf({material.get(), mesh.get(), hidden.get()});
        const auto redPixels = [&picture](double x, double y) {
            int found = 0;
            for (int offset = -2; offset <= 2; ++offset) {
                const QColor pixel = pixelAt(picture, x + offset * 0.02, y);
                found += pixel.red() > pixel.green() + 60 ? 1 : 0;
            }
            return found;
        };
        QVERIFY(redPixels(-0.8, 0.3) > 0); // the left side
        QVERIFY(redPixels(0.3, 0.3) + redPixels(0.3, -0.3) > 0); // one of the diagonals
        QVERIFY(redPixels(-0.4, 0.2) == 0); // behind
        COMPARE_PIXEL(picture, 0.5, 0.1, white);
    }

    void aSectionCutsMeshesAway()
    {
        const NxRef<NxMaterial> material = plain(1, 1, 1);
        const NxRef<NxMesh> mesh = rectangle(-1, -1, 1, 1);
        cut(VbVec3f(1, 0, 0), 0.25);
        QImage picture = m_bench.pictureOf({material.get(), mesh.get()});
        COMPARE_PIXEL(picture, 0.2, 0.5, white);
        COMPARE_PIXEL(picture, 0.3, 0.5, black);
        cut(VbVec3f(-1, 0, 0), -0.25);
        picture = m_bench.pictureOf({material.get(), mesh.get()});
        COMPARE_PIXEL(picture, 0.2, 0.5, black);
        COMPARE_PIXEL(picture, 0.3, 0.5, white);
    }

    void aSectionShowsWhatIsInside()
    {
        const NxRef<NxMaterial> outside = plain(1, 1, 1);
        const NxRef<NxMesh> shell = ball(0.9F);
        const NxRef<NxMaterial> inside = plain(1, 0, 0);
        const NxRef<NxMesh> core = rectangle(-0.2F, -0.2F, 0.2F, 0.2F);
        cut(VbVec3f(0, 0, 1), 0.1);
        const QImage picture = m_bench.pictureOf({outside.get(), shell.get(), inside.get(), core.get()});
        COMPARE_PIXEL(picture, 0, 0, red);
    }

    void aSectionIsExactFarFromTheOrigin()
    {
        const NxRef<NxMaterial> material = plain(1, 1, 1);
        const NxRef<NxMesh> mesh = rectangle(-1, -1, 1, 1);
        const NxRef<NxTransform> far = make<NxTransform>();
        far->translation.setValue(VbVec3f(16'777'216, 0, 0));
        far->addChild(mesh.get());
        NxViewpoint viewpoint = DrawingBench::front();
        viewpoint.position = VbVec3d(16'777'216, viewpoint.position[1], viewpoint.position[2]);
        cut(VbVec3f(1, 0, 0), 16'777'216.25);
        const QImage picture = m_bench.pictureOf({material.get(), far.get()}, viewpoint);
        COMPARE_PIXEL(picture, 0.2, 0.5, white);
        COMPARE_PIXEL(picture, 0.3, 0.5, black);
    }

    void picturesAreCounted()
    {
        const NxRef<NxMaterial> material = plain(1, 1, 1);
        const NxRef<NxMesh> mesh = rectangle(-1, -1, 1, 1);
        const NxRef<NxMesh> line = meshOf({VbVec3f(0, 0, 0), VbVec3f(1, 0, 0)}, NxMesh::LINES);
        const NxRef<NxGroup> scene = groupOf({material.get(), mesh.get(), mesh.get(), line.get()});
        m_bench.drawing().setScene(scene.get());
        static_cast<void>(m_bench.draw());
        QCOMPARE(m_bench.counts().drawnTriangles, 4U);
        QVERIFY(m_bench.counts().nodes >= 3 && m_bench.counts().nodes <= 4);
    }

    void aRayIsLimitedToWhatIsShown_data()
    {
        QTest::addColumn<VbVec3f>("direction");
        QTest::addColumn<float>("first");
        QTest::addColumn<float>("last");
        QTest::newRow("towards the plane") << VbVec3f(2, 0, 0) << 0.F << 3.F;
        QTest::newRow("away from it") << VbVec3f(-1, 0, 0) << 0.F << 100.F;
        QTest::newRow("along it") << VbVec3f(0, 1, 0) << 0.F << 100.F;
    }
    void aRayIsLimitedToWhatIsShown()
    {
        QFETCH(const VbVec3f, direction);
        NxSection section;
        section.isOn = true;
        section.position = 5;
        const auto [first, last] = section.limited({VbVec3f(2, 0, 0), direction}, {0.F, 100.F});
        QTEST(first, "first");
        QTEST(last, "last");
        // From beyond the plane.
        const auto [beyond, end] = section.limited({VbVec3f(9, 0, 0), VbVec3f(-1, 0, 0)}, {0.F, 100.F});
        QCOMPARE(beyond, 4.F);
        QCOMPARE(end, 100.F);
        const auto [nothing, atAll] = section.limited({VbVec3f(9, 0, 0), VbVec3f(0, 1, 0)}, {0.F, 100.F});
        QVERIFY(nothing > atAll);
        section.isOn = false;
        QCOMPARE(section.limited({VbVec3f(9, 0, 0), VbVec3f(0, 1, 0)}, {0.F, 100.F}), std::pair(0.F, 100.F));
    }

private:
    void show(NxDrawingStyle::Shading shading)
    {
        m_bench.restyle([shading](NxDrawingStyle& style) { style.shading = shading; });
    }
    void cut(const VbVec3f& normal, double position)
    {
        m_bench.restyle([&](NxDrawingStyle& style) { style.section = {true, normal, position}; });
    }

    DrawingBench m_bench;
};

QTEST_MAIN(TestDisplayModes)
#include "tst_DisplayModes.moc"
