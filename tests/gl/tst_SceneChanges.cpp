#include "gl/DrawingBench.h"

#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxMatrixTransform.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSwitch.h"
#include "meridane/scene/nodes/NxTransform.h"

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

/// Bytes of the four positions and of the other lists of a rectangle.
constexpr std::uint64_t positionBytes = 4 * 12;
constexpr std::uint64_t coordinateBytes = 4 * 8;
constexpr std::uint64_t colorBytes = 4 * 16;
constexpr std::uint64_t indexBytes = 6 * 4;
constexpr std::uint64_t rectangleBytes = 2 * positionBytes + coordinateBytes + indexBytes;

/// A rectangle on the left and one on the right, each behind a material in a transform, lit by the camera.
struct Pair {
    Pair()
    {
        left->translation.setValue(VbVec3f(-0.5F, 0, 0));
        right->translation.setValue(VbVec3f(0.5F, 0, 0));
        for (NxGroup* group : std::initializer_list<NxGroup*>{left.get(), right.get()})
            scene->addChild(group);
        left->addChild(leftMaterial.get());
        left->addChild(leftMesh.get());
        right->addChild(rightMaterial.get());
        right->addChild(rightMesh.get());
    }

    NxRef<NxGroup> scene = new NxGroup;
    NxRef<NxTransform> left = new NxTransform;
    NxRef<NxTransform> right = new NxTransform;
    NxRef<NxMaterial> leftMaterial = plain(1, 0, 0);
    NxRef<NxMaterial> rightMaterial = plain(0, 1, 0);
    NxRef<NxMesh> leftMesh = rectangle(-0.3F, -0.3F, 0.3F, 0.3F);
    NxRef<NxMesh> rightMesh = rectangle(-0.3F, -0.3F, 0.3F, 0.3F, 0.1F);
};

class TestSceneChanges : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void anEditUploadsWhatItTouched_data();
    void anEditUploadsWhatItTouched();
    void everyEditIsFollowed_data();
    void everyEditIsFollowed();
    void childrenComeAndGo();
    void anUndoneRemovalIsDrawnAgain();
    void nodesDieBeforeTheQueueTells();
    void aNodeAtTheAddressOfADeadOneIsFollowed();
    void aMeshInManyPlacesIsUploadedOnce();
    void aSharedGroupIsFollowedInAllPlaces();
    void meshesOutOfViewAreNotDrawn();
    void theHookIsCalledOnceAPicture();
    void boundsFollow();
    void theSelectionFollowsTheStructure();
    void aLostContextIsMadeUpFor();
    void anotherSceneGivesEverythingUp();

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

    std::unique_ptr<DrawingBench> m_bench;
    std::unique_ptr<Pair> m_pair;
    QImage m_picture;
};

void TestSceneChanges::init()
{
    m_bench = std::make_unique<DrawingBench>();
    m_pair = std::make_unique<Pair>();
    m_bench->drawing().setScene(m_pair->scene.get());
    m_picture = m_bench->draw();
    QCOMPARE(m_bench->counts().meshUploads, 2U);
    QCOMPARE(m_bench->counts().uploadedBytes, 2 * rectangleBytes);
    COMPARE_PIXEL(m_picture, -0.5, 0, red);
    COMPARE_PIXEL(m_picture, 0.5, 0, green);
}

void TestSceneChanges::cleanup()
{
    const QStringList messages = m_bench->takeMessages();
    m_bench.reset();
    m_pair.reset();
    QCOMPARE(messages, QStringList());
}

using Edit = std::function<void(Pair&)>;

void TestSceneChanges::anEditUploadsWhatItTouched_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<Cost>("cost");
    const auto row = [](const char* name, const Edit& edit, const Cost& cost) { QTest::newRow(name) << edit << cost; };
    row(
        "nothing", [](Pair&) {}, nothing);
    row(
        "the name of a mesh", [](Pair& pair) { pair.leftMesh->setName(VbString("left")); }, nothing);
    row(
        "a material", [](Pair& pair) { pair.leftMaterial->diffuseColor.setValue(VbColor(0, 0, 1)); }, nothing);
    row(
        "a transform", [](Pair& pair) { pair.left->translation.setValue(VbVec3f(-0.4F, 0, 0)); }, nothing);
    row(
        "the same positions", [](Pair& pair) { pair.leftMesh->positions.touch(); }, nothing);
    row("a position", [](Pair& pair) { pair.leftMesh->positions.set1Value(0, VbVec3f(-0.4F, -0.4F, 0)); },
        {1, positionBytes, 0});
    row("a normal", [](Pair& pair) { pair.leftMesh->normals.set1Value(0, VbVec3f(0, 1, 0)); }, {1, positionBytes, 0});
    row("an index", [](Pair& pair) { pair.leftMesh->indices.set1Value(0, 1); }, {1, indexBytes, 0});
    row("texture coordinates", [](Pair& pair) { pair.leftMesh->textureCoordinates.set1Value(0, VbVec2f(1, 1)); },
        {1, coordinateBytes, 0});
    row(
        "one colour for all", [](Pair& pair) { pair.leftMesh->colors.setValues({VbVec4f(0, 0, 1, 1)}); }, nothing);
    row("new colours", [](Pair& pair) { pair.leftMesh->colors.setValues(std::vector<VbVec4f>(4)); },
        {1, rectangleBytes + colorBytes, 0});
    row("a triangle less", [](Pair& pair) { pair.leftMesh->indices.deleteValues(3, 3); },
        {1, rectangleBytes - indexBytes / 2, 0});
    row("another mesh", [](Pair& pair) { pair.left->addChild(rectangle(0, 0, 1, 1).get()); }, {1, rectangleBytes, 0});
    row(
        "a mesh less", [](Pair& pair) { pair.left->removeChild(1); }, nothing);
    row(
        "the same mesh again", [](Pair& pair) { pair.left->addChild(pair.rightMesh.get()); }, nothing);
    row(
        "a light", [](Pair& pair) { pair.scene->insertChild(new NxPointLight, 0); }, nothing);
    row("a texture", [](Pair& pair) { pair.scene->insertChild(fourPixels().get(), 0); }, {0, 0, 1});
}

void TestSceneChanges::anEditUploadsWhatItTouched()
{
    QFETCH(Edit, edit);
    QFETCH(Cost, cost);
    QCOMPARE(costOf([&] { edit(*m_pair); }), cost);
    QCOMPARE(costOf([] {}), nothing);
}

void TestSceneChanges::everyEditIsFollowed_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QColor>("left");
    QTest::addColumn<QColor>("middle");
    const auto row = [](const char* name, const Edit& edit, const QColor& left, const QColor& middle = black) {
        QTest::newRow(name) << edit << left << middle;
    };
    row(
        "diffuse colour", [](Pair& pair) { pair.leftMaterial->diffuseColor.setValue(VbColor(0, 0, 1)); }, blue);
    row(
        "emissive colour", [](Pair& pair) { pair.leftMaterial->emissiveColor.setValue(VbColor(0, 1, 0)); },
        color(1, 1, 0));
    row(
        "ambient colour", [](Pair& pair) { pair.leftMaterial->ambientColor.setValue(VbColor(0, 0, 1)); },
        color(1, 0, 0.2));
    row(
        "specular colour", [](Pair& pair) { pair.leftMaterial->specularColor.setValue(VbColor(0, 0, 1)); },
        color(1, 0, 1));
    row(
        "transparency", [](Pair& pair) { pair.leftMaterial->transparency.setValue(0.5F); }, color(0.5, 0, 0));
    row(
        "ignored", [](Pair& pair) { pair.leftMaterial->diffuseColor.setIgnored(1); }, color(0.8, 0.8, 0.8));
    row(
        "translation", [](Pair& pair) { pair.left->translation.setValue(VbVec3f(0, 0, 0)); }, black, red);
    row(
        "scale", [](Pair& pair) { pair.left->scaleFactor.setValue(VbVec3f(2, 1, 1)); }, red, red);
    row(
        "rotation", [](Pair& pair) { pair.left->rotation.setValue(VbRotation(VbVec3f(0, 1, 0), 1.5707963F)); }, black);
    row(
        "centre and rotation",
        [](Pair& pair) {
            pair.left->center.setValue(VbVec3f(0.5F, 0, 0));
            pair.left->rotation.setValue(VbRotation(VbVec3f(0, 0, 1), 3.1415927F));
        },
        black); // goes to the right, behind the other
    row(
        "positions",
        [](Pair& pair) {
            pair.leftMesh->positions.setValues({{0.3F, -0.3F, 0}, {0.7F, -0.3F, 0}, {0.7F, 0.3F, 0}, {0.3F, 0.3F, 0}});
        },
        black, red);
    row(
        "normals",
        [](Pair& pair) { pair.leftMesh->normals.setValues(std::vector<VbVec3f>(4, VbVec3f(0.8F, 0, 0.6F))); },
        color(0.6, 0, 0));
    row(
        "no normals", [](Pair& pair) { pair.leftMesh->normals.deleteValues(0, -1); }, red);
    row(
        "indices",
        [](Pair& pair) {
            pair.leftMesh->indices.setValues({0, 1, 1});
        },
        black);
    row(
        "primitive", [](Pair& pair) { pair.leftMesh->primitive.setValue(NxMesh::POINTS); }, black);
    row(
        "colours", [](Pair& pair) { pair.leftMesh->colors.setValues({VbVec4f(0, 0, 1, 1)}); }, blue);
    row(
        "a texture ahead", [](Pair& pair) { pair.left->insertChild(fourPixels().get(), 0); }, color(0.5, 0, 0));
    row(
        "a switch instead",
        [](Pair& pair) {
            const NxRef<NxSwitch> choice = new NxSwitch;
            choice->addChild(pair.leftMesh.get());
            pair.left->removeChild(1);
            pair.left->addChild(choice.get());
        },
        black);
    row(
        "a light ahead",
        [](Pair& pair) {
            const NxRef<NxDirectionalLight> light = new NxDirectionalLight;
            light->intensity.setValue(0.5F);
            pair.scene->insertChild(light.get(), 0);
        },
        color(0.5, 0, 0));
    row(
        "a bounding box",
        [](Pair& pair) {
            const NxRef<NxComplexity> complexity = new NxComplexity;
            complexity->type.setValue(NxComplexity::BOUNDING_BOX);
            pair.left->insertChild(complexity.get(), 0);
        },
        black);
}

void TestSceneChanges::everyEditIsFollowed()
{
    QFETCH(Edit, edit);
    QFETCH(QColor, left);
    QFETCH(QColor, middle);
    edit(*m_pair);
    m_picture = m_bench->draw();
    COMPARE_PIXEL(m_picture, -0.5, 0, left, 4);
    COMPARE_PIXEL(m_picture, 0, 0, middle, 4);
}

void TestSceneChanges::childrenComeAndGo()
{
    const auto light = make<NxPointLight>();
    const auto choice = make<NxSwitch>();
    choice->addChild(light.get());
    choice->addChild(plain(0, 0, 1).get());
    m_pair->scene->insertChild(choice.get(), 0);
    (void)m_bench->draw();
    // In the scene's own group, light and material hold for all that follows.
    m_pair->left->removeChild(0);
    m_pair->scene->insertChild(plain(0, 0, 1).get(), 0);
    COMPARE_PIXEL(m_bench->draw(), -0.5, 0, blue);
    m_pair->scene->insertChild(light.get(), 0);
    light->location.setValue(VbVec3f(-0.5F, 0, 10));
    light->color.setValue(VbColor(0, 0, 0.5F));
    COMPARE_PIXEL(m_bench->draw(), -0.5, 0, color(0, 0, 0.5));
    light->intensity.setValue(0.5F);
    COMPARE_PIXEL(m_bench->draw(), -0.5, 0, color(0, 0, 0.25));
    m_pair->scene->removeAllChildren();
    COMPARE_PIXEL(m_bench->draw(), -0.5, 0, black);
    QCOMPARE(m_bench->counts().bufferBytes, 0U);
    m_pair->scene->addChild(m_pair->right.get());
    COMPARE_PIXEL(m_bench->draw(), 0.5, 0, green);
}

void TestSceneChanges::anUndoneRemovalIsDrawnAgain()
{
    m_pair->scene->removeChild(0);
    COMPARE_PIXEL(m_bench->draw(), -0.5, 0, black);
    m_pair->leftMaterial->diffuseColor.setValue(VbColor(0, 0, 1)); // while nobody watches
    m_pair->scene->insertChild(m_pair->left.get(), 0);
    COMPARE_PIXEL(m_bench->draw(), -0.5, 0, blue);
}

void TestSceneChanges::nodesDieBeforeTheQueueTells()
{
    m_pair->left = nullptr;
    m_pair->leftMaterial = nullptr;
    m_pair->leftMesh = nullptr;
    m_pair->scene->removeChild(0);
    // Nobody processes the queue: a picture shows what is there.
    COMPARE_PIXEL(m_bench->drawUntold(), -0.5, 0, black);
    COMPARE_PIXEL(m_bench->draw(), -0.5, 0, black);
}

void TestSceneChanges::aNodeAtTheAddressOfADeadOneIsFollowed()
{
    m_pair->leftMaterial = nullptr;
    for (int i = 0; i < 10; ++i) {
        m_pair->left->removeChild(0);
        const auto material = plain(0, 0, 1);
        m_pair->left->insertChild(material.get(), 0);
        COMPARE_PIXEL(m_bench->draw(), -0.5, 0, blue);
        material->diffuseColor.setValue(VbColor(0, 1, 0));
        COMPARE_PIXEL(m_bench->draw(), -0.5, 0, green);
    }
}

void TestSceneChanges::aMeshInManyPlacesIsUploadedOnce()
{
    const std::uint64_t bytes = m_bench->counts().bufferBytes;
    m_pair->right->insertChild(m_pair->leftMesh.get(), 1);
    m_pair->rightMesh->primitive.setValue(NxMesh::POINTS);
    QCOMPARE(costOf([] {}), nothing);
    QCOMPARE(m_bench->counts().bufferBytes, bytes);
    COMPARE_PIXEL(m_picture, -0.5, 0, red);
    COMPARE_PIXEL(m_picture, 0.5, 0, green);
    QCOMPARE(costOf([this] {
        m_pair->leftMesh->positions.setValues({{0.2F, -0.3F, 0}, {0.4F, -0.3F, 0}, {0.4F, 0.3F, 0}, {0.2F, 0.3F, 0}});
    }),
        (Cost{1, positionBytes, 0}));
    COMPARE_PIXEL(m_picture, -0.5, 0, black);
    COMPARE_PIXEL(m_picture, -0.2, 0, red);
    COMPARE_PIXEL(m_picture, 0.8, 0, green);
}

void TestSceneChanges::aSharedGroupIsFollowedInAllPlaces()
{
    const auto shared = groupOf({plain(0, 0, 1).get(), m_pair->leftMesh.get()});
    m_pair->left->removeAllChildren();
    m_pair->right->removeAllChildren();
    m_pair->left->addChild(shared.get());
    m_pair->right->addChild(shared.get());
    m_picture = m_bench->draw();
    COMPARE_PIXEL(m_picture, -0.5, 0, blue);
    COMPARE_PIXEL(m_picture, 0.5, 0, blue);
    shared->insertChild(plain(0, 1, 0).get(), 1);
    m_picture = m_bench->draw();
    COMPARE_PIXEL(m_picture, -0.5, 0, green);
    COMPARE_PIXEL(m_picture, 0.5, 0, green);
}

void TestSceneChanges::meshesOutOfViewAreNotDrawn()
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

void TestSceneChanges::theHookIsCalledOnceAPicture()
{
    int calls = 0;
    m_bench->drawing().setChangeHook([&calls] { ++calls; });
    NxDelayQueue::getDefault().process();
    QCOMPARE(calls, 0);
    m_pair->leftMaterial->shininess.setValue(0.5F);
    m_pair->left->translation.setValue(VbVec3f());
    QCOMPARE(calls, 0); // nothing happens inside the call that changes a field
    NxDelayQueue::getDefault().process();
    QCOMPARE(calls, 1);
    m_pair->leftMesh->positions.touch();
    NxDelayQueue::getDefault().process();
    m_bench->drawing().setSelectedNode(m_pair->left.get());
    QCOMPARE(calls, 1);
    (void)m_bench->draw();
    m_bench->restyle([](NxDrawingStyle& style) { style.grid = true; });
    QCOMPARE(calls, 2);
    m_bench->restyle([](NxDrawingStyle& style) { style.grid = true; });
    QCOMPARE(calls, 2);
    m_bench->drawing().setChangeHook({});
}

void TestSceneChanges::boundsFollow()
{
    const auto expected = [](float left, float right) {
        NxBounds bounds;
        bounds.include(VbVec3f(left, -0.3F, 0));
        bounds.include(VbVec3f(right, 0.3F, 0.1F));
        return bounds;
    };
    NxSceneDrawing& drawing = m_bench->drawing();
    QVERIFY(drawing.getBounds() == expected(-0.8F, 0.8F));
    m_pair->left->translation.setValue(VbVec3f(-1.5F, 0, 0));
    NxDelayQueue::getDefault().process();
    QVERIFY(drawing.getBounds() == expected(-1.8F, 0.8F));
    QCOMPARE(drawing.getBounds(m_pair->left.get()).max[0], -1.2F);
    QCOMPARE(drawing.getBounds(m_pair->rightMesh.get()).min[0], 0.2F);
    QVERIFY(drawing.getBounds(m_pair->leftMaterial.get()).isEmpty());
    QVERIFY(drawing.getBounds(m_pair->scene.get()) == drawing.getBounds());
    drawing.setScene(nullptr);
    QVERIFY(drawing.getBounds().isEmpty());
}

void TestSceneChanges::theSelectionFollowsTheStructure()
{
    m_bench->restyle([](NxDrawingStyle& style) {
        style.outlineColor = VbColor(0, 0, 1);
        style.outlineWidth = 4;
    });
    m_bench->drawing().setSelectedNode(m_pair->left.get());
    COMPARE_PIXEL(m_bench->draw(), -0.16, 0, blue);
    m_pair->left->addChild(rectangle(0.5F, 0.5F, 0.7F, 0.7F).get());
    COMPARE_PIXEL(m_bench->draw(), 0.24, 0.6, blue);
    m_pair->left->removeAllChildren();
    m_picture = m_bench->draw();
    COMPARE_PIXEL(m_picture, -0.16, 0, black);
    COMPARE_PIXEL(m_picture, 0.24, 0.6, black);
}

void TestSceneChanges::aLostContextIsMadeUpFor()
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

void TestSceneChanges::anotherSceneGivesEverythingUp()
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
    m_pair->leftMesh->positions.touch(); // nobody watches any more
    QCOMPARE(costOf([] {}), nothing);
}

} // namespace

QTEST_APPLESS_MAIN(TestSceneChanges)
#include "tst_SceneChanges.moc"
