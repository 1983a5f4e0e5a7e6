#include "gl/DrawingBench.h"

#include "meridane/gl/gpu/NxImage.h"
#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <functional>
#include <memory>

namespace {

using Edit = std::function<void(NxMesh&)>;

/// A mesh whose lists change, and one that shares its buffers on the GPU.
struct Neighbours {
    explicit Neighbours(bool hasLessDetail)
    {
        if (hasLessDetail) {
            const auto complexity = make<NxComplexity>();
            complexity->value.setValue(0.1F);
            scene->addChild(complexity.get());
        }
        const auto left = make<NxTransform>();
        left->translation.setValue(VbVec3f(-0.5F, 0, 0));
        left->addChild(changed.get());
        const auto right = make<NxTransform>();
        right->translation.setValue(VbVec3f(0.5F, 0, 0));
        right->addChild(neighbour.get());
        scene->addChild(left.get());
        scene->addChild(right.get());
    }

    NxRef<NxMesh> changed = ball(0.3F, 20);
    NxRef<NxMesh> neighbour = ball(0.4F, 20);
    NxRef<NxGroup> scene = new NxGroup;
};

template <typename Field>
void cut(Field& field, int count)
{
    field.deleteValues(count, field.getNum() - count);
}

} // namespace

class TestMeshStore : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aMeshWithLessDetailKeepsItsColoursAndTexture()
    {
        const auto complexity = make<NxComplexity>();
        complexity->value.setValue(0.1F);
        const auto colored = ball(0.4F, 20);
        colored->colors.setValues(
            std::vector<VbVec4f>(static_cast<std::size_t>(colored->positions.getNum()), {0, 0, 1, 1}));
        const auto left = make<NxTransform>();
        left->translation.setValue(VbVec3f(-0.5F, 0, 0));
        left->addChild(colored.get());
        const auto textured = ball(0.4F, 20);
        // All of it shows the lower right pixel.
        textured->textureCoordinates.setValues(
            std::vector<VbVec2f>(static_cast<std::size_t>(textured->positions.getNum()), {0.75F, 0.25F}));
        const auto right = make<NxTransform>();
        right->translation.setValue(VbVec3f(0.5F, 0, 0));
        right->addChild(fourPixels().get());
        right->addChild(textured.get());
        const auto scene = groupOf({complexity.get(), plain(1, 1, 1).get(), left.get(), right.get()});
        DrawingBench bench;
        bench.drawing().setScene(scene.get());
        const QImage picture = bench.draw();
        QVERIFY(isNear(pixelAt(picture, -0.5, 0), blue, 30));
        QVERIFY(isNear(pixelAt(picture, 0.5, 0), green, 30));
        QCOMPARE(bench.takeMessages(), QStringList());
    }

    void aMeshIsDrawnAsItIsBeforeTheQueueTells_data()
    {
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<bool>("hasLessDetail");
        QTest::addColumn<bool>("isOnGpu");
        const std::pair<const char*, Edit> edits[] = {
            {"more of everything",
                [](NxMesh& mesh) {
                    const auto other = ball(0.35F, 60);
                    mesh.positions.copyFrom(other->positions);
                    mesh.normals.copyFrom(other->normals);
                    mesh.indices.copyFrom(other->indices);
                }},
            {"fewer positions", [](NxMesh& mesh) { cut(mesh.positions, 200); }},
            {"fewer normals", [](NxMesh& mesh) { cut(mesh.normals, 1); }},
            {"fewer indices", [](NxMesh& mesh) { cut(mesh.indices, 300); }},
            {"no indices", [](NxMesh& mesh) { cut(mesh.indices, 0); }},
            {"an index beyond the positions", [](NxMesh& mesh) { mesh.indices.set1Value(1000, 100'000'000); }},
            {"a negative index", [](NxMesh& mesh) { mesh.indices.set1Value(1000, -5); }},
            {"colours", [](NxMesh& mesh) { mesh.colors.setValues(std::vector<VbVec4f>(441, VbVec4f(0, 0, 1, 1))); }},
            {"nothing left",
                [](NxMesh& mesh) {
                    cut(mesh.positions, 0);
                    cut(mesh.normals, 0);
                    cut(mesh.indices, 0);
                }},
        };
        for (const auto& [name, edit] : edits) {
            for (const bool hasLessDetail : {false, true}) {
                for (const bool isOnGpu : {false, true})
                    QTest::addRow("%s%s%s", name, hasLessDetail ? ", less detail" : "", isOnGpu ? ", on the GPU" : "")
                        << edit << hasLessDetail << isOnGpu;
            }
        }
    }

    void aMeshIsDrawnAsItIsBeforeTheQueueTells()
    {
        QFETCH(Edit, edit);
        QFETCH(bool, hasLessDetail);
        QFETCH(bool, isOnGpu);
        DrawingBench bench;
        const Neighbours pair(hasLessDetail);
        bench.drawing().setScene(pair.scene.get());
        if (isOnGpu) {
            (void)bench.draw();
            bench.loseContext();
        }
        edit(*pair.changed);
        const QImage untold = bench.drawUntold();
        const QImage told = bench.draw();
        bench.renew(pair.scene.get());
        const QImage expected = bench.drawUntold();
        bench.takeBack();
        QVERIFY(untold == expected);
        QVERIFY(told == expected);
        for (const QString& message : bench.takeMessages())
            QVERIFY2(message.contains(QLatin1String("draw")), qUtf8Printable(message)); // of lists that don't fit
    }

    // The loader of images is called in the middle of a picture, and whatever it calls may change the scene.
    void aMeshThatChangesWhileItIsDrawnWaits()
    {
        DrawingBench bench;
        const Neighbours pair(false);
        const auto texture = make<NxTexture>();
        texture->filePath.setValue(VbString("any.png"));
        pair.scene->insertChild(texture.get(), 0);
        bench.drawing().setScene(pair.scene.get());
        (void)bench.draw();
        bench.drawing().setImageLoader([&pair](const std::string&, NxImage&, std::string&) {
            const auto other = ball(0.35F, 60);
            pair.changed->positions.copyFrom(other->positions);
            pair.changed->normals.copyFrom(other->normals);
            pair.changed->indices.copyFrom(other->indices);
            return NxImageState::Withheld;
        });
        const auto pixels = [&bench] { return pixelAt(bench.drawUntold(), 0.5, 0); };
        bench.loseContext();
        const QColor neighbour = pixels();
        QCOMPARE(pixels(), neighbour);
        bench.drawing().setImageLoader({});
        const QImage picture = bench.draw();
        bench.renew(pair.scene.get());
        QVERIFY(picture == bench.draw());
        bench.takeBack();
    }
};

QTEST_APPLESS_MAIN(TestMeshStore)
#include "tst_MeshStore.moc"
