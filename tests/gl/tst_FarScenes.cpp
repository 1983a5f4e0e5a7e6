#include "gl/DrawingBench.h"
#include "gl/FloatMatrices.h"

#include "meridane/gl/NxRayPick.h"
#include "meridane/gl/geometry/MatrixMath.h"
#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxPerspectiveCamera.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <functional>
#include <memory>

using namespace meridane;

namespace {

/// Puts nodes that are made for the origin there.
using Placing = std::function<NxRef<NxGroup>(const VbVec3f& offset)>;

NxRef<NxTransform> transformOf(const VbVec3f& translation, std::initializer_list<NxNode*> nodes)
{
    NxRef<NxTransform> transform = new NxTransform;
    transform->translation.setValue(translation);
    for (NxNode* node : nodes)
        transform->addChild(node);
    return transform;
}

/// Things of all kinds within a few units of the origin.
NxRef<NxGroup> things()
{
    const auto lamp = make<NxPointLight>();
    lamp->location.setValue(VbVec3f(-2, 2, 3));
    const auto spot = make<NxSpotLight>();
    spot->location.setValue(VbVec3f(2, 0.5F, 3));
    spot->direction.setValue(VbVec3f(-0.5F, 0, -1));
    const auto turned = transformOf(VbVec3f(0.3F, 0.1F, -0.2F), {plain(1, 0.5F, 0).get(), ball(0.5F).get()});
    turned->rotation.setValue(VbRotation(VbVec3f(1, 2, 3), 0.7F));
    turned->scaleFactor.setValue(VbVec3f(1, 1.7F, 0.6F));
    const auto coarse = make<NxComplexity>();
    coarse->type.setValue(NxComplexity::SCREEN_SPACE);
    coarse->value.setValue(0.3F);
    const auto box = make<NxComplexity>();
    box->type.setValue(NxComplexity::BOUNDING_BOX);
    return groupOf({lamp.get(), spot.get(), turned.get(),
        transformOf(VbVec3f(-0.7F, 0.6F, 0), {coarse.get(), ball(0.4F, 24).get()}).get(),
        transformOf(VbVec3f(-0.6F, -0.5F, 0.1F), {fourPixels().get(), rectangle(-0.3F, -0.3F, 0.3F, 0.3F).get()}).get(),
        transformOf(VbVec3f(0.5F, -0.5F, 0), {box.get(), ball(0.2F).get()}).get(),
        meshOf({{-0.9F, -0.9F, 0}, {0.9F, -0.8F, 0.3F}}, NxMesh::LINES).get(),
        meshOf({{0.9F, 0.9F, 0}, {0.8F, 0.9F, 0}}, NxMesh::POINTS).get(),
        // The order from back to front counts.
        plain(0, 1, 0, 0.5F).get(), rectangle(0.2F, -0.4F, 0.7F, 0.4F, 0.75F).get(), plain(1, 0, 0, 0.3F).get(),
        rectangle(0.3F, -0.3F, 0.8F, 0.5F, 0.7F).get()});
}

/// A solid whose corners are whole numbers, and so exact in floats as far away as that.
NxRef<NxMesh> wholeNumbers(const VbVec3f& offset)
{
    NxRef<NxMesh> mesh = new NxMesh;
    std::vector<VbVec3f> positions;
    for (const VbVec3f& corner : {VbVec3f(-1, -1, 0), VbVec3f(1, -1, 0), VbVec3f(0, 1, -1), VbVec3f(0, -1, 1)})
        positions.push_back(add(corner, offset));
    mesh->positions.setValues(std::move(positions));
    mesh->indices.setValues({0, 3, 2, 3, 1, 2, 1, 0, 2, 0, 1, 3});
    return mesh;
}

NxRef<NxGroup> inATransform(const VbVec3f& offset)
{
    return groupOf({transformOf(offset, {things().get()}).get()});
}

NxRef<NxGroup> inSteps(const VbVec3f& offset)
{
    const auto matrix = make<NxMatrixTransform>();
    matrix->matrix.setValue(translationMatrix(scaled(offset, -1)));
    matrix->addChild(things().get());
    return groupOf({transformOf(scaled(offset, 2), {matrix.get()}).get()});
}

NxRef<NxGroup> byItsPositions(const VbVec3f& offset)
{
    return groupOf({plain(0.9F, 0.8F, 0.1F).get(), wholeNumbers(offset).get()});
}

NxRef<NxGroup> aboutACenter(const VbVec3f& offset)
{
    const auto transform = transformOf(VbVec3f(), {plain(0.2F, 0.8F, 0.1F).get(), wholeNumbers(offset).get()});
    transform->center.setValue(offset);
    transform->rotation.setValue(VbRotation(VbVec3f(3, 2, 1), 0.5F));
    transform->scaleFactor.setValue(VbVec3f(0.8F, 0.7F, 0.9F));
    return groupOf({transform.get()});
}

NxViewpoint viewpointAt(NxViewpoint::Projection projection, const VbVec3f& offset)
{
    NxViewpoint viewpoint;
    viewpoint.projection = projection;
    viewpoint.height = 2.5F;
    viewpoint.position = VbVec3d(0.2, 0.3, 3);
    viewpoint.focalDistance = 3;
    viewpoint.orbit(0.2F, 0.1F);
    viewpoint.position = add(viewpoint.position, offset);
    return viewpoint;
}

/// How many pixels differ by more than that of 255 in some component.
int differences(const QImage& left, const QImage& right, int tolerance = 3)
{
    if (left == right)
        return 0;
    int count = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x)
            count += isNear(left.pixelColor(x, y), right.pixelColor(x, y), tolerance) ? 0 : 1;
    }
    return count;
}

/// Whether pictures are the same but for a few pixels where surfaces meet or borders lie between two pixels: there the
/// last bits of a float decide.
bool looksLike(const QImage& picture, const QImage& expected)
{
    return differences(picture, expected) <= picture.width() * picture.height() / 1000;
}

int painted(const QImage& picture)
{
    QImage none(picture.size(), picture.format());
    none.fill(Qt::black);
    return differences(picture, none);
}

} // namespace

class TestFarScenes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { m_bench = std::make_unique<DrawingBench>(); }
    void cleanupTestCase() { m_bench.reset(); }

    void cleanup()
    {
        m_bench->drawing().setScene(nullptr);
        m_bench->restyle([](NxDrawingStyle& style) { style.boundingBoxes = style.grid = style.axes = false; });
    }

    void aFarSceneLooksAsAtTheOrigin_data()
    {
        QTest::addColumn<Placing>("place");
        QTest::addColumn<VbVec3f>("offset");
        QTest::addColumn<int>("projection");
        const std::pair<const char*, Placing> placings[] = {
            {"in a transform", inATransform},
            {"in steps", inSteps},
            {"by its positions", byItsPositions},
            {"about a center", aboutACenter},
        };
        const std::pair<const char*, VbVec3f> offsets[] = {
            {"1,000,000 to the right", VbVec3f(1e6F, 0, 0)},
            {"1,000,000 in all directions", VbVec3f(1e6F, -1e6F, 1e6F)},
            {"10,000,000 to the right", VbVec3f(1e7F, 0, 0)},
            {"10,000,000 ahead", VbVec3f(0, 0, -1e7F)},
            {"10,000,000 in all directions", VbVec3f(-1e7F, 1e7F, 1e7F)},
        };
        for (const auto& [placing, place] : placings) {
            for (const auto& [where, offset] : offsets) {
                for (const int projection : {NxViewpoint::PERSPECTIVE, NxViewpoint::ORTHOGRAPHIC})
                    QTest::addRow("%s, %s, %s", placing, where,
                        projection == NxViewpoint::PERSPECTIVE ? "perspective" : "orthographic")
                        << place << offset << projection;
            }
        }
    }

    void aFarSceneLooksAsAtTheOrigin()
    {
        QFETCH(Placing, place);
        QFETCH(VbVec3f, offset);
        QFETCH(int, projection);
        m_bench->restyle([](NxDrawingStyle& style) { style.boundingBoxes = true; });
        QImage pictures[2];
        for (const bool isFar : {false, true}) {
            const VbVec3f where = isFar ? offset : VbVec3f();
            const auto scene = place(where);
            m_bench->drawing().setScene(scene.get());
            m_bench->drawing().setSelectedNode(scene->getChild(0));
            pictures[isFar ? 1 : 0]
                = m_bench->draw(viewpointAt(static_cast<NxViewpoint::Projection>(projection), where), 200, 150);
        }
        QVERIFY(painted(pictures[0]) > 3000);
        QVERIFY(looksLike(pictures[1], pictures[0]));
        QCOMPARE(m_bench->takeMessages(), QStringList());
    }

    void aFarSceneIsPickedAsAtTheOrigin_data() { aFarSceneLooksAsAtTheOrigin_data(); }

    void aFarSceneIsPickedAsAtTheOrigin()
    {
        QFETCH(Placing, place);
        QFETCH(VbVec3f, offset);
        QFETCH(int, projection);
        const auto kind = static_cast<NxViewpoint::Projection>(projection);
        const auto near = place(VbVec3f());
        const auto far = place(offset);
        int hits = 0;
        for (float x = 0; x < 1; x += 0.093F) {
            for (float y = 0; y < 1; y += 0.087F) {
                const auto pickIn = [&](NxGroup& scene, const VbVec3f& where) {
                    NxRayPick pick(viewpointAt(kind, where).rayAt(VbVec2f(x, y), 1.3F));
                    pick.setTolerance(0.01F, 0);
                    return pick.pick(scene);
                };
                const auto expected = pickIn(*near, VbVec3f());
                const auto hit = pickIn(*far, offset);
                QCOMPARE(hit.has_value(), expected.has_value());
                if (!hit)
                    continue;
                ++hits;
                QCOMPARE(hit->path.size(), expected->path.size());
                QCOMPARE(hit->path.back()->getClassName(), expected->path.back()->getClassName());
                QCOMPARE(hit->primitive, expected->primitive);
                QVERIFY(std::abs(hit->distance - expected->distance) < 1e-5F);
                QVERIFY(length(subtract(subtract(hit->point, offset), expected->point)) < 1e-5);
            }
        }
        QVERIFY(hits > 10);
    }

    void theGridIsDrawnFarAway()
    {
        m_bench->restyle([](NxDrawingStyle& style) { style.grid = true; });
        const auto view = [](const VbVec3f& offset) {
            NxViewpoint viewpoint;
            viewpoint.position = add(VbVec3d(0, 2, 5), offset);
            viewpoint.lookAlong(VbVec3f(0, -0.3F, -1), VbVec3f(0, 1, 0));
            return viewpoint;
        };
        const QImage expected = m_bench->draw(view(VbVec3f()));
        QVERIFY(painted(expected) > 500);
        for (const float distance : {1e6F, 1e7F})
            QVERIFY(looksLike(m_bench->draw(view(VbVec3f(distance, 0, -distance))), expected));
    }

    void theAxesDontHideAFarScene_data()
    {
        QTest::addColumn<int>("projection");
        QTest::newRow("perspective") << int{NxViewpoint::PERSPECTIVE};
        QTest::newRow("orthographic") << int{NxViewpoint::ORTHOGRAPHIC};
    }

    void theAxesDontHideAFarScene()
    {
        QFETCH(int, projection);
        const VbVec3f offset(1e7F, 1e7F, 1e7F);
        const auto scene = inATransform(offset);
        m_bench->drawing().setScene(scene.get());
        const NxViewpoint viewpoint = viewpointAt(static_cast<NxViewpoint::Projection>(projection), offset);
        const QImage expected = m_bench->draw(viewpoint);
        m_bench->restyle([](NxDrawingStyle& style) { style.axes = style.grid = true; });
        QVERIFY(painted(expected) > 1000);
        QVERIFY(looksLike(m_bench->draw(viewpoint), expected));
    }

    void aCameraSeesAFarScene()
    {
        QImage pictures[2];
        for (const bool isFar : {false, true}) {
            const auto camera = make<NxPerspectiveCamera>();
            camera->position.setValue(VbVec3f(0.1F, 0.2F, 3));
            const auto transform
                = transformOf(isFar ? VbVec3f(1e7F, 0, 1e7F) : VbVec3f(), {camera.get(), things().get()});
            const auto scene = groupOf({transform.get()});
            m_bench->drawing().setScene(scene.get());
            NxViewpoint viewpoint = NxViewpoint::ofCamera(*camera, localTransformOf(*transform));
            viewpoint.focalDistance = 3;
            pictures[isFar ? 1 : 0] = m_bench->draw(viewpoint);
        }
        QVERIFY(painted(pictures[0]) > 1000);
        QVERIFY(looksLike(pictures[1], pictures[0]));
    }

    void aViewpointMovesAsFarAwayAsAtTheOrigin()
    {
        const VbVec3f offset(1e7F, -1e7F, 1e7F);
        for (const auto projection : {NxViewpoint::PERSPECTIVE, NxViewpoint::ORTHOGRAPHIC}) {
            NxViewpoint near = viewpointAt(projection, VbVec3f());
            NxViewpoint far = viewpointAt(projection, offset);
            for (int i = 0; i < 1000; ++i) {
                for (NxViewpoint* viewpoint : {&near, &far}) {
                    viewpoint->orbit(0.01F, i % 2 == 0 ? 0.01F : -0.01F);
                    viewpoint->pan(VbVec2f(0.5F, 0.5F), VbVec2f(i % 2 == 0 ? 0.51F : 0.49F, 0.5F), 1, 3);
                    viewpoint->zoom(i % 2 == 0 ? 1.01F : 1 / 1.01F, viewpoint->pointAt(VbVec2f(0.3F, 0.7F), 1, 3));
                }
            }
            QVERIFY(length(subtract(subtract(far.position, offset), near.position)) < 1e-4);
            QVERIFY(length(subtract(near.position, viewpointAt(projection, VbVec3f()).position)) > 0.1);
        }
    }

private:
    std::unique_ptr<DrawingBench> m_bench;
};

QTEST_APPLESS_MAIN(TestFarScenes)
#include "tst_FarScenes.moc"
