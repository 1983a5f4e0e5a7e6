#include "gl/DrawingBench.h"

#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <cmath>

class TestDrawingStyle : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(m_bench.takeMessages(), QStringList()); }

    void stylesDifferIfOneMemberDoes()
    {
        QVERIFY(NxDrawingStyle() == NxDrawingStyle());
        using Change = void (*)(NxDrawingStyle&);
        for (const Change change :
            std::initializer_list<Change>{[](NxDrawingStyle& style) { style.surfaces = NxDrawingStyle::WIREFRAME; },
                [](NxDrawingStyle& style) { style.shading = NxDrawingStyle::UNLIT; },
                [](NxDrawingStyle& style) { style.wires = !style.wires; },
                [](NxDrawingStyle& style) { style.headLight = !style.headLight; },
                [](NxDrawingStyle& style) { style.section.isOn = !style.section.isOn; },
                [](NxDrawingStyle& style) { style.section.normal = VbVec3f(0, 1, 0); },
                [](NxDrawingStyle& style) { style.section.position = 1; },
                [](NxDrawingStyle& style) { style.wireColor = VbColor(1, 0, 0); },
                [](NxDrawingStyle& style) { style.grid = !style.grid; },
                [](NxDrawingStyle& style) { style.axes = !style.axes; },
                [](NxDrawingStyle& style) { style.boundingBoxes = !style.boundingBoxes; },
                [](NxDrawingStyle& style) { style.backgroundBottom = VbColor(1, 0, 0); },
                [](NxDrawingStyle& style) { style.backgroundTop = VbColor(1, 0, 0); },
                [](NxDrawingStyle& style) { style.gridColor = VbColor(1, 0, 0); },
                [](NxDrawingStyle& style) { style.boundingBoxColor = VbColor(1, 0, 0); },
                [](NxDrawingStyle& style) { style.outlineColor = VbColor(1, 0, 0); },
                [](NxDrawingStyle& style) { style.outlineWidth = 3; },
                [](NxDrawingStyle& style) { style.hoverOutlineColor = VbColor(1, 0, 0); },
                [](NxDrawingStyle& style) { style.outlineBorderColor = VbColor(1, 0, 0); },
                [](NxDrawingStyle& style) { style.pointSize = 5; },
                [](NxDrawingStyle& style) { style.markColor = VbColor(1, 0, 0); },
                [](NxDrawingStyle& style) { style.markBorderColor = VbColor(1, 0, 0); },
                [](NxDrawingStyle& style) { style.markSize = 5; }}) {
            NxDrawingStyle changed;
            change(changed);
            QVERIFY(changed != NxDrawingStyle());
        }
    }

    void wireframeShowsTheSides()
    {
        m_bench.restyle([](NxDrawingStyle& style) { style.surfaces = NxDrawingStyle::WIREFRAME; });
        const QImage picture = pictureOf({plain(1, 0, 0).get(), rectangle(-0.5F, -0.5F, 0.5F, 0.5F).get()});
        m_bench.restyle([](NxDrawingStyle& style) { style.surfaces = NxDrawingStyle::SOLID; });
        COMPARE_PIXEL(picture, 0.5, 0, red);
        COMPARE_PIXEL(picture, 0.25, 0.25, red); // the diagonal
        COMPARE_PIXEL(picture, -0.25, 0.25, black);
        COMPARE_PIXEL(picture, 0.25, -0.25, black);
    }

    void theBackgroundGoesFromBottomToTop()
    {
        m_bench.restyle([](NxDrawingStyle& style) {
            style.backgroundBottom = VbColor(1, 0, 0);
            style.backgroundTop = VbColor(0, 0, 1);
        });
        const QImage picture = m_bench.draw();
        m_bench.restyle([](NxDrawingStyle& style) { style.backgroundBottom = style.backgroundTop = VbColor(); });
        COMPARE_PIXEL(picture, 0, -1, red);
        COMPARE_PIXEL(picture, 0, 0, color(0.5, 0, 0.5));
        COMPARE_PIXEL(picture, 0, 1, blue);
    }

    void gridAxesAndBoxesAreDrawnWhenTheyAreOn()
    {
        const auto isDark = [](const QImage& picture) {
            for (int i = 0; i < picture.width() * picture.height(); ++i) {
                if (picture.pixelColor(i % picture.width(), i / picture.width()) != black)
                    return false;
            }
            return true;
        };
        NxViewpoint above = DrawingBench::front();
        above.position = VbVec3f(0, 5, 0);
        above.orientation = VbRotation(VbVec3f(1, 0, 0), -1.5707963F);
        QVERIFY(isDark(m_bench.draw(above)));
        m_bench.restyle([](NxDrawingStyle& style) {
            style.grid = true;
            style.gridColor = VbColor(1, 1, 1);
        });
        QVERIFY(!isDark(m_bench.draw(above)));
        m_bench.restyle([](NxDrawingStyle& style) {
            style.grid = false;
            style.axes = true;
        });
        const QImage axes = m_bench.draw(above);
        const QColor right = pixelAt(axes, 0.5, 0);
        QVERIFY2(right.red() > 150 && right.blue() < 100, text(right).constData());
        const QColor below = pixelAt(axes, 0, -0.5); // z comes towards the viewer's feet
        QVERIFY2(below.blue() > 150 && below.red() < 100, text(below).constData());

        m_bench.restyle([](NxDrawingStyle& style) {
            style.axes = false;
            style.boundingBoxes = true;
            style.boundingBoxColor = VbColor(0, 1, 0);
        });
        const QImage boxes = pictureOf({plain(1, 0, 0).get(), ball(0.505F).get()});
        m_bench.restyle([](NxDrawingStyle& style) { style.boundingBoxes = false; });
        COMPARE_PIXEL(boxes, 0.505, 0.4, green);
        COMPARE_PIXEL(boxes, 0, 0, red, 6);
    }

    void theSelectionIsOutlinedEvenWhenHidden()
    {
        const auto hidden = rectangle(-0.5F, -0.5F, 0.5F, 0.5F, -1);
        const auto group = groupOf({hidden.get()});
        const auto scene = groupOf({plain(0, 0, 1).get(), rectangle(-1, -1, 1, 1).get(), group.get()});
        m_bench.restyle([](NxDrawingStyle& style) {
            style.outlineColor = VbColor(1, 0, 0);
            style.outlineWidth = 4;
        });
        m_bench.drawing().setScene(scene.get());
        for (NxNode* node : std::initializer_list<NxNode*>{hidden.get(), group.get()}) {
            m_bench.drawing().setSelectedNode(node);
            const QImage picture = m_bench.draw();
            COMPARE_PIXEL(picture, 0.54, 0, red);
            COMPARE_PIXEL(picture, 0, -0.54, red);
            COMPARE_PIXEL(picture, 0, 0, blue);
            COMPARE_PIXEL(picture, 0.7, 0, blue);
        }
        m_bench.drawing().setSelectedNode(nullptr);
        COMPARE_PIXEL(m_bench.draw(), 0.54, 0, blue);
        m_bench.drawing().setScene(nullptr);
    }

    void anOutlineIsSeenOnItsOwnColor()
    {
        const auto front = rectangle(-0.5F, -0.5F, 0.5F, 0.5F);
        const auto scene = groupOf({plain(1, 0, 0).get(), rectangle(-1, -1, 1, 1, -1).get(), front.get()});
        m_bench.restyle([](NxDrawingStyle& style) {
            style.outlineColor = VbColor(1, 0, 0);
            style.outlineWidth = 4;
        });
        m_bench.drawing().setScene(scene.get());
        const auto darkPixels = [](const QImage& picture) {
            int dark = 0;
            for (int x = 0; x < picture.width(); ++x)
                dark += picture.pixelColor(x, picture.height() / 2).red() < 128 ? 1 : 0;
            return dark;
        };
        QCOMPARE(darkPixels(m_bench.draw()), 0);
        m_bench.drawing().setSelectedNode(front.get());
        // The border of the line, to the left and to the right.
        QVERIFY(darkPixels(m_bench.draw()) >= 2);
        m_bench.drawing().setScene(nullptr);
    }

    void whatAClickWouldSelectIsOutlinedMoreQuietly()
    {
        const auto mesh = rectangle(-0.5F, -0.5F, 0.5F, 0.5F);
        const auto scene = groupOf({plain(0, 0, 1).get(), mesh.get()});
        m_bench.restyle([](NxDrawingStyle& style) {
            style.hoverOutlineColor = VbColor(0, 1, 0);
            style.outlineColor = VbColor(1, 0, 0);
            style.outlineWidth = 8;
        });
        m_bench.drawing().setScene(scene.get());
        const std::vector<NxNode*> path{mesh.get()};
        m_bench.drawing().setHoveredPath(path);
        COMPARE_PIXEL(m_bench.draw(), 0.52, 0, green);
        m_bench.drawing().setSelectedPath(path);
        COMPARE_PIXEL(m_bench.draw(), 0.52, 0, red);
        m_bench.drawing().setSelectedPath({});
        m_bench.drawing().setHoveredPath({});
        COMPARE_PIXEL(m_bench.draw(), 0.52, 0, black);
        m_bench.drawing().setScene(nullptr);
    }

    void aPathOutlinesOnePlace()
    {
        const auto mesh = rectangle(-0.2F, -0.2F, 0.2F, 0.2F);
        const auto left = make<NxTransform>();
        left->translation.setValue(VbVec3f(-0.5F, 0, 0));
        left->addChild(mesh.get());
        const auto right = make<NxTransform>();
        right->translation.setValue(VbVec3f(0.5F, 0, 0));
        right->addChild(mesh.get());
        const auto scene = groupOf({left.get(), right.get()});
        m_bench.restyle([](NxDrawingStyle& style) {
            style.outlineColor = VbColor(1, 0, 0);
            style.outlineWidth = 4;
        });
        m_bench.drawing().setScene(scene.get());
        const std::vector<NxNode*> path{right.get(), mesh.get()};
        m_bench.drawing().setSelectedPath(path);
        QImage picture = m_bench.draw();
        COMPARE_PIXEL(picture, 0.26, 0, red);
        COMPARE_PIXEL(picture, -0.26, 0, black);
        QCOMPARE(m_bench.drawing().bounds(path).min[0], 0.3F);
        m_bench.drawing().setSelectedNode(mesh.get());
        picture = m_bench.draw();
        COMPARE_PIXEL(picture, 0.26, 0, red);
        COMPARE_PIXEL(picture, -0.26, 0, red);
        QCOMPARE(m_bench.drawing().bounds(mesh.get()).min[0], -0.7F);
        m_bench.drawing().setScene(nullptr);
    }

    void linesAndPointsGrowWithTheScale()
    {
        const auto line = meshOf({{-0.8F, 0.5F, 0}, {0.8F, 0.5F, 0}}, NxMesh::LINES);
        const auto point = meshOf({{0, -0.5F, 0}}, NxMesh::POINTS);
        const auto scene = groupOf({plain(1, 0, 0).get(), line.get(), point.get()});
        m_bench.drawing().setScene(scene.get());
        // How many pixels of a column are lit.
        const auto heightAt = [&](const QImage& picture, bool isUpper) {
            int count = 0;
            for (int y = 0; y < picture.height() / 2; ++y)
                count += picture.pixelColor(picture.width() / 2, isUpper ? y : picture.height() - 1 - y) == red ? 1 : 0;
            return count;
        };
        for (const int scale : {1, 2, 3}) {
            const QImage picture
                = m_bench.drawUntold(DrawingBench::front(), 100 * scale, 100 * scale, static_cast<float>(scale));
            QCOMPARE(heightAt(picture, true), scale);
            QCOMPARE(heightAt(picture, false), 4 * scale);
        }
        m_bench.drawing().setScene(nullptr);
    }

    void stateIsBackAtItsDefault()
    {
        const auto scene = groupOf({fourPixels().get(), plain(1, 0, 0, 0.5F).get(), rectangle(-1, -1, 1, 1).get()});
        m_bench.drawing().setScene(scene.get());
        m_bench.drawing().setSelectedNode(scene.get());
        (void)m_bench.draw();
        const NxGLFunctions& gl = m_bench.gl();
        const auto valueOf = [&gl](GLenum name) {
            int value = -1;
            gl.GetIntegerv(name, &value);
            return value;
        };
        for (const int off :
            {GL_DEPTH_TEST, GL_BLEND, GL_CULL_FACE, GL_SCISSOR_TEST, GL_PROGRAM_POINT_SIZE, GL_CURRENT_PROGRAM,
                GL_VERTEX_ARRAY_BINDING, GL_ARRAY_BUFFER_BINDING, GL_TEXTURE_BINDING_2D, GL_SAMPLER_BINDING})
            QCOMPARE(valueOf(static_cast<GLenum>(off)), 0);
        QCOMPARE(valueOf(GL_DEPTH_WRITEMASK), 1);
        QCOMPARE(valueOf(GL_DEPTH_FUNC), GL_LESS);
        QCOMPARE(valueOf(GL_FRONT_FACE), GL_CCW);
        QCOMPARE(valueOf(GL_BLEND_SRC_RGB), GL_ONE);
        m_bench.drawing().setScene(nullptr);
    }

    void linesAreDrawn()
    {
        const auto mesh = meshOf({{-0.8F, 0, 0}, {0.8F, 0, 0}, {0, 0.8F, 0}, {0, 0.4F, 0}}, NxMesh::LINES);
        const QImage picture = pictureOf({plain(0, 1, 0).get(), mesh.get()});
        COMPARE_PIXEL(picture, -0.5, 0, green);
        COMPARE_PIXEL(picture, 0.5, 0, green);
        COMPARE_PIXEL(picture, 0, 0.6, green);
        COMPARE_PIXEL(picture, 0, 0.2, black);
    }

    void pointsAreDrawn()
    {
        const auto mesh = meshOf({{-0.5F, 0, 0}, {0.5F, 0, 0}, {0, 0.5F, 0}}, NxMesh::POINTS);
        mesh->indices.setValues({0, 2});
        m_bench.restyle([](NxDrawingStyle& style) { style.pointSize = 8; });
        const QImage picture = pictureOf({plain(0, 1, 0).get(), mesh.get()});
        m_bench.restyle([](NxDrawingStyle& style) { style.pointSize = NxDrawingStyle().pointSize; });
        COMPARE_PIXEL(picture, -0.5, 0, green);
        COMPARE_PIXEL(picture, -0.5 + 0.06, 0, green); // 3 pixels beside the middle
        COMPARE_PIXEL(picture, -0.5 + 0.12, 0, black);
        COMPARE_PIXEL(picture, 0, 0.5, green);
        COMPARE_PIXEL(picture, 0.5, 0, black);
    }

    void pointsAreTwiceAsLargeWherePixelsAreHalfAsLarge()
    {
        const auto scene = groupOf({plain(0, 1, 0).get(), meshOf({{0, 0, 0}}, NxMesh::POINTS).get()});
        m_bench.drawing().setScene(scene.get());
        const auto widthOf = [](const QImage& picture) {
            int width = 0;
            for (int x = 0; x < picture.width(); ++x)
                width += picture.pixelColor(x, picture.height() / 2) == green ? 1 : 0;
            return width;
        };
        const int size = static_cast<int>(m_bench.drawing().style().pointSize);
        QCOMPARE(widthOf(m_bench.drawUntold(DrawingBench::front(), 100, 100, 1)), size);
        QCOMPARE(widthOf(m_bench.drawUntold(DrawingBench::front(), 200, 200, 2)), 2 * size);
        m_bench.drawing().setScene(nullptr);
    }

    void selectedLinesAndPointsAreSeenOnAnyGround_data()
    {
        QTest::addColumn<QColor>("own");
        QTest::addColumn<QColor>("ground");
        const QColor orange(255, 153, 26);
        for (const QColor& own : {white, black, orange}) {
            for (const QColor& ground : {white, black, orange})
                QTest::addRow("%s on %s", qPrintable(own.name()), qPrintable(ground.name())) << own << ground;
        }
    }
    void selectedLinesAndPointsAreSeenOnAnyGround()
    {
        QFETCH(const QColor, own);
        QFETCH(const QColor, ground);
        const NxDrawingStyle before = m_bench.drawing().style();
        const VbColor back(ground.redF(), ground.greenF(), ground.blueF());
        m_bench.restyle([&](NxDrawingStyle& style) { style.backgroundBottom = style.backgroundTop = back; });
        const auto material = make<NxMaterial>();
        material->diffuseColor.setValue(VbColor(0, 0, 0));
        material->emissiveColor.setValue(VbColor(own.redF(), own.greenF(), own.blueF()));
        for (const int primitive : {int{NxMesh::LINES}, int{NxMesh::POINTS}}) {
            const auto mesh = meshOf({{0, -0.5F, 0}, {0, 0.5F, 0}}, primitive);
            const auto scene = groupOf({material.get(), mesh.get()});
            m_bench.drawing().setScene(scene.get());
            m_bench.drawing().setSelectedNode(mesh.get());
            const QImage picture = m_bench.draw();
            int seen = 0;
            const int row = primitive == NxMesh::LINES ? picture.height() / 2 : picture.height() / 4;
            for (int x = 0; x < picture.width(); ++x)
                seen += std::abs(qGray(picture.pixel(x, row)) - qGray(ground.rgb())) > 60 ? 1 : 0;
            QVERIFY2(seen >= 2, qPrintable(QString::number(seen)));
        }
        m_bench.drawing().setScene(nullptr);
        m_bench.drawing().setStyle(before);
    }

    void colorsOfCornersReplaceTheMaterial()
    {
        const auto each = rectangle(-1, -1, 0, 1);
        each->colors.setValues({{1, 0, 0, 1}, {0, 0, 1, 1}, {0, 0, 1, 1}, {1, 0, 0, 1}});
        const auto one = rectangle(0, -1, 1, 1);
        one->colors.setValues({VbVec4f(0, 1, 0, 0.5F)});
        const QImage picture = pictureOf({plain(1, 1, 1, 0.9F).get(), each.get(), one.get()});
        COMPARE_PIXEL(picture, -0.5, 0, color(0.5, 0, 0.5), 4);
        COMPARE_PIXEL(picture, -0.95, 0, color(0.95, 0, 0.05), 6);
        COMPARE_PIXEL(picture, 0.5, 0, color(0, 0.5, 0));
    }

    void aBoundingBoxStandsForTheMesh()
    {
        const auto complexity = make<NxComplexity>();
        complexity->type.setValue(NxComplexity::BOUNDING_BOX);
        const QImage picture = pictureOf({complexity.get(), plain(1, 0, 0).get(), ball(0.505F).get()});
        COMPARE_PIXEL(picture, 0, 0, black);
        COMPARE_PIXEL(picture, 0.505, 0, red);
        COMPARE_PIXEL(picture, 0, -0.505, red);
        COMPARE_PIXEL(picture, 0.49, 0.49, black);
    }

private:
    QImage pictureOf(std::initializer_list<NxNode*> nodes, const NxViewpoint& viewpoint = DrawingBench::front())
    {
        return m_bench.pictureOf(nodes, viewpoint);
    }

    DrawingBench m_bench;
};

QTEST_APPLESS_MAIN(TestDrawingStyle)
#include "tst_DrawingStyle.moc"
