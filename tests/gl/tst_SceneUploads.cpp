#include "gl/ScenePairCase.h"

#include "meridane/scene/nodes/NxPointLight.h"

#include <functional>

namespace {

/// What a step cost.
struct Cost {
    std::uint64_t meshUploads;
    std::uint64_t uploadedBytes;
    std::uint64_t textureUploads;

    friend bool operator==(const Cost&, const Cost&) = default;
};

constexpr Cost nothing{0, 0, 0};

char* toString(const Cost& cost)
{
    return QTest::toString(QStringLiteral("%1 meshes, %2 bytes, %3 textures")
                               .arg(cost.meshUploads)
                               .arg(cost.uploadedBytes)
                               .arg(cost.textureUploads));
}

/// Bytes of the four colours of a rectangle.
constexpr std::uint64_t colorBytes = 4 * 16;

} // namespace

/// What goes to the GPU after a change, and what is freed there.
class TestSceneUploads : public ScenePairCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { drawPair(); }
    void cleanup() { endDrawing(); }

    void anEditUploadsWhatItTouched_data()
    {
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<Cost>("cost");
        const auto row
            = [](const char* name, const Edit& edit, const Cost& cost) { QTest::newRow(name) << edit << cost; };
        row(
            "nothing", [](ScenePair&) {}, nothing);
        row(
            "the name of a mesh", [](ScenePair& pair) { pair.leftMesh->setName(VbString("left")); }, nothing);
        row(
            "a material", [](ScenePair& pair) { pair.leftMaterial->diffuseColor.setValue(VbColor(0, 0, 1)); }, nothing);
        row(
            "a transform", [](ScenePair& pair) { pair.left->translation.setValue(VbVec3f(-0.4F, 0, 0)); }, nothing);
        row(
            "the same positions", [](ScenePair& pair) { pair.leftMesh->positions.touch(); }, nothing);
        row("a position", [](ScenePair& pair) { pair.leftMesh->positions.set1Value(0, VbVec3f(-0.4F, -0.4F, 0)); },
            {1, positionBytes, 0});
        row("a normal", [](ScenePair& pair) { pair.leftMesh->normals.set1Value(0, VbVec3f(0, 1, 0)); },
            {1, positionBytes, 0});
        row("an index", [](ScenePair& pair) { pair.leftMesh->indices.set1Value(0, 1); }, {1, indexBytes, 0});
        row("texture coordinates",
            [](ScenePair& pair) { pair.leftMesh->textureCoordinates.set1Value(0, VbVec2f(1, 1)); },
            {1, coordinateBytes, 0});
        row(
            "one colour for all", [](ScenePair& pair) { pair.leftMesh->colors.setValues({VbVec4f(0, 0, 1, 1)}); },
            nothing);
        row("new colours", [](ScenePair& pair) { pair.leftMesh->colors.setValues(std::vector<VbVec4f>(4)); },
            {1, rectangleBytes + colorBytes, 0});
        row("a triangle less", [](ScenePair& pair) { pair.leftMesh->indices.deleteValues(3, 3); },
            {1, rectangleBytes - indexBytes / 2, 0});
        row("another mesh", [](ScenePair& pair) { pair.left->addChild(rectangle(0, 0, 1, 1).get()); },
            {1, rectangleBytes, 0});
        row(
            "a mesh less", [](ScenePair& pair) { pair.left->removeChild(1); }, nothing);
        row(
            "the same mesh again", [](ScenePair& pair) { pair.left->addChild(pair.rightMesh.get()); }, nothing);
        row(
            "a light", [](ScenePair& pair) { pair.scene->insertChild(new NxPointLight, 0); }, nothing);
        row("a texture", [](ScenePair& pair) { pair.scene->insertChild(fourPixels().get(), 0); }, {0, 0, 1});
    }

    void anEditUploadsWhatItTouched()
    {
        QFETCH(Edit, edit);
        QFETCH(Cost, cost);
        QCOMPARE(costOf([&] { edit(*m_pair); }), cost);
        QCOMPARE(costOf([] {}), nothing);
    }

    void aMeshInManyPlacesIsUploadedOnce()
    {
        const std::uint64_t bytes = m_bench->counts().bufferBytes;
        m_pair->right->insertChild(m_pair->leftMesh.get(), 1);
        m_pair->rightMesh->primitive.setValue(NxMesh::POINTS);
        QCOMPARE(costOf([] {}), nothing);
        QCOMPARE(m_bench->counts().bufferBytes, bytes);
        COMPARE_PIXEL(m_picture, -0.5, 0, red);
        COMPARE_PIXEL(m_picture, 0.5, 0, green);
        QCOMPARE(costOf([this] {
            m_pair->leftMesh->positions.setValues(
                {{0.2F, -0.3F, 0}, {0.4F, -0.3F, 0}, {0.4F, 0.3F, 0}, {0.2F, 0.3F, 0}});
        }),
            (Cost{1, positionBytes, 0}));
        COMPARE_PIXEL(m_picture, -0.5, 0, black);
        COMPARE_PIXEL(m_picture, -0.2, 0, red);
        COMPARE_PIXEL(m_picture, 0.8, 0, green);
    }

    void meshesOutOfViewAreNotDrawn()
    {
        QCOMPARE(m_bench->counts().drawnItems, 2U);
        QCOMPARE(m_bench->counts().culledItems, 0U);
        const std::uint64_t drawCalls = m_bench->counts().drawCalls;
        m_pair->left->translation.setValue(VbVec3f(-50, 0, 0));
        (void)m_bench->draw();
        QCOMPARE(m_bench->counts().drawnItems, 1U);
        QCOMPARE(m_bench->counts().culledItems, 1U);
        QCOMPARE(m_bench->counts().drawCalls, drawCalls - 1);
        // What was never in view isn't uploaded either.
        QCOMPARE(costOf([this] { m_pair->left->addChild(rectangle(0, 0, 1, 1).get()); }), nothing);
        NxViewpoint elsewhere = DrawingBench::front();
        elsewhere.position = VbVec3f(-50, 0, 5);
        (void)m_bench->draw(elsewhere);
        QCOMPARE(m_bench->counts().drawnItems, 2U);
        QCOMPARE(m_bench->counts().culledItems, 1U);
    }

    void aLostContextIsMadeUpFor()
    {
        m_pair->left->insertChild(fourPixels().get(), 0);
        m_bench->drawing().setSelectedNode(m_pair->right.get());
        m_picture = m_bench->draw();
        const QImage before = m_picture;
        m_bench->loseContext();
        QCOMPARE(costOf([] {}), (Cost{2, 2 * rectangleBytes, 1}));
        QVERIFY(m_picture == before);
        QCOMPARE(costOf([] {}), nothing);
    }

    void anotherSceneGivesEverythingUp()
    {
        m_pair->left->insertChild(fourPixels().get(), 0);
        (void)m_bench->draw();
        QVERIFY(m_bench->counts().textureBytes > 0);
        const auto other = groupOf({plain(0, 0, 1).get(), rectangle(-1, -1, 1, 1).get()});
        m_bench->drawing().setScene(other.get());
        COMPARE_PIXEL(m_bench->draw(), -0.5, 0, blue);
        QCOMPARE(m_bench->counts().bufferBytes, rectangleBytes);
        QCOMPARE(m_bench->counts().textureBytes, 0U);
        QCOMPARE(m_pair->scene->getRefCount(), 1);
        m_pair->leftMesh->positions.touch(); // the drawing has no sensor there any more
        QCOMPARE(costOf([] {}), nothing);
    }

private:
    /// The cost of drawing after an edit.
    Cost costOf(const std::function<void()>& edit)
    {
        const NxDrawingCounts before = m_bench->counts();
        edit();
        m_picture = m_bench->draw();
        const NxDrawingCounts after = m_bench->counts();
        return {after.meshUploads - before.meshUploads, after.uploadedBytes - before.uploadedBytes,
            after.textureUploads - before.textureUploads};
    }
};

QTEST_APPLESS_MAIN(TestSceneUploads)
#include "tst_SceneUploads.moc"
