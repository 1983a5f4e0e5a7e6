#include "gl/DrawingBench.h"

#include "meridane/gl/PlacedScene.h"
#include "meridane/scene/NxComplexity.h"
#include "meridane/scene/NxDirectionalLight.h"
#include "meridane/scene/NxSwitch.h"
#include "meridane/scene/NxTransform.h"

#include <algorithm>
#include <random>

using namespace meridane;

namespace {

double numberOf(const NxNode* node)
{
    return static_cast<double>(reinterpret_cast<std::uintptr_t>(node));
}

/// Makes changes of all kinds, in no order, to a scene with shared nodes.
class Editor {
public:
    Editor(NxGroup& scene, unsigned int seed)
        : m_random(seed)
        , m_groups{&scene}
    {
        for (int i = 0; i < 4; ++i) {
            m_nodes.emplace_back(new NxTransform);
            m_nodes.emplace_back(new NxSwitch);
            m_nodes.emplace_back(new NxGroup);
            m_nodes.emplace_back(plain(real(0, 1), real(0, 1), real(0, 1)));
            m_nodes.emplace_back(rectangle(-0.3F, -0.3F, 0.3F, 0.3F, real(-0.5F, 0.5F)));
        }
        m_nodes.emplace_back(ball(0.3F, 12));
        m_nodes.emplace_back(meshOf({{-0.5F, 0, 0}, {0.5F, 0, 0}}, NxMesh::LINES));
        m_nodes.emplace_back(fourPixels());
        m_nodes.emplace_back(new NxComplexity);
        m_nodes.emplace_back(new NxDirectionalLight);
        for (const NxRef<NxNode>& node : m_nodes) {
            if (node->isOfType(NxGroup::getClassTypeId()))
                m_groups.emplace_back(static_cast<NxGroup*>(node.get()));
        }
    }

    void edit()
    {
        NxGroup& group = *m_groups[pick(m_groups.size())];
        NxNode& node = *m_nodes[pick(m_nodes.size())];
        switch (pick(4)) {
        case 0:
        case 1:
            if (group.getNumChildren() < 5)
                group.insertChild(&node, static_cast<int>(pick(static_cast<std::size_t>(group.getNumChildren()) + 1)));
            break;
        case 2:
            if (pick(2) == 0)
                group.removeChild(static_cast<int>(pick(5)));
            break;
        default:
            change(node);
        }
    }

private:
    void change(NxNode& node)
    {
        if (auto* transform = dynamic_cast<NxTransform*>(&node)) {
            transform->translation.setValue(VbVec3f(real(-0.7F, 0.7F), real(-0.7F, 0.7F), real(-1, 1)));
            transform->rotation.setIgnored(pick(2) == 0);
            transform->rotation.setValue(VbRotation(VbVec3f(0, 1, 1), real(0, 6)));
        } else if (auto* choice = dynamic_cast<NxSwitch*>(&node)) {
            choice->whichChild.setValue(static_cast<int>(pick(6)) - 3);
        } else if (auto* material = dynamic_cast<NxMaterial*>(&node)) {
            material->diffuseColor.setValue(VbColor(real(0, 1), real(0, 1), real(0, 1)));
            material->transparency.setValue(pick(2) == 0 ? 0 : real(0, 1));
        } else if (auto* mesh = dynamic_cast<NxMesh*>(&node)) {
            changeMesh(*mesh);
        } else if (auto* complexity = dynamic_cast<NxComplexity*>(&node)) {
            complexity->type.setValue(static_cast<int>(pick(3)));
            complexity->value.setValue(real(0, 1));
            complexity->textureQuality.setValue(real(0, 1));
        } else if (auto* light = dynamic_cast<NxDirectionalLight*>(&node)) {
            light->direction.setValue(VbVec3f(real(-1, 1), real(-1, 1), -1));
            light->on.setValue(pick(4) != 0);
        } else {
            node.setName(VbString("renamed"));
        }
    }

    void changeMesh(NxMesh& mesh)
    {
        switch (pick(4)) {
        case 0:
            mesh.positions.set1Value(0, VbVec3f(real(-0.5F, 0.5F), real(-0.5F, 0.5F), 0));
            break;
        case 1:
            mesh.colors.setValues(std::vector<VbVec4f>(pick(2), VbVec4f(1, 1, 0, real(0, 2))));
            break;
        case 2:
            mesh.normals.setIgnored(pick(2) == 0);
            break;
        default:
            mesh.indices.insertSpace(0, 6); // triangles without extent
        }
    }

    std::size_t pick(std::size_t count) { return m_random() % count; }
    float real(float least, float greatest) { return std::uniform_real_distribution<float>(least, greatest)(m_random); }

    std::mt19937 m_random;
    std::vector<NxRef<NxNode>> m_nodes;
    std::vector<NxRef<NxGroup>> m_groups;
};

PlacedScene::Listener deaf()
{
    return {[] {}, [](MeshRecord&) {}, [](TextureRecord&) {}};
}

/// Everything that counts for the places of meshes, in no order of the scene's: which mesh it is, where, and its look.
std::vector<std::vector<double>> contentsOf(PlacedScene& scene, const NxNode* root)
{
    std::vector<std::vector<double>> contents;
    for (const Id id : scene.itemsBelow(root)) {
        const Item& item = scene.table().item(id);
        const Look& look = scene.looks()[item.look];
        std::vector<double> values{
            numberOf(item.mesh->node()), numberOf(look.texture ? look.texture->node() : nullptr)};
        const auto append = [&values](const auto& list) { values.insert(values.end(), list.begin(), list.end()); };
        for (std::size_t row = 0; row < 4; ++row)
            append(scene.table().placementOf(item)[row]);
        append(look.material != nullptr ? look.material->values : materialValues(nullptr));
        const ComplexityValues complexity = look.complexity ? look.complexity->values : ComplexityValues();
        append(std::initializer_list<float>{
            static_cast<float>(complexity.type), complexity.value, complexity.textureQuality});
        for (const LightList* list = look.lights.get(); list != nullptr; list = list->above())
            append(lightValues(list->light().light(), scene.table().placements[list->placement()]));
        const NxBounds bounds = scene.tree().boundsOf(id);
        append(std::span(bounds.min.getValue(), 3));
        append(std::span(bounds.max.getValue(), 3));
        contents.push_back(std::move(values));
    }
    std::sort(contents.begin(), contents.end());
    return contents;
}

class TestRandomEdits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void followedEditsGiveThePlacesOfANewScene_data();
    void followedEditsGiveThePlacesOfANewScene();
};

void TestRandomEdits::followedEditsGiveThePlacesOfANewScene_data()
{
    QTest::addColumn<unsigned int>("seed");
    for (unsigned int seed = 0; seed < 3; ++seed)
        QTest::addRow("%u", seed) << seed;
}

void TestRandomEdits::followedEditsGiveThePlacesOfANewScene()
{
    QFETCH(unsigned int, seed);
    DrawingBench bench;
    const auto scene = make<NxGroup>();
    Editor editor(*scene, seed);
    bench.drawing().setScene(scene.get());
    PlacedScene followed(deaf());
    followed.setRoot(scene.get());
    for (int round = 0; round < 60; ++round) {
        for (int i = 0; i < 10; ++i)
            editor.edit();
        (void)bench.draw();
        const NxDrawingCounts counts = bench.counts();
        followed.update();
        PlacedScene anew(deaf());
        anew.setRoot(scene.get());
        QCOMPARE(contentsOf(followed, scene.get()), contentsOf(anew, scene.get()));
        QVERIFY(followed.tree().bounds() == anew.tree().bounds());
        QVERIFY(bench.drawing().getBounds() == anew.tree().bounds());

        bench.renew(scene.get());
        (void)bench.draw();
        QCOMPARE(counts.drawnItems, bench.counts().drawnItems);
        QCOMPARE(counts.culledItems, bench.counts().culledItems);
        QCOMPARE(counts.drawnCorners, bench.counts().drawnCorners);
        bench.takeBack();
    }
    QCOMPARE(bench.takeMessages(), QStringList());
}

} // namespace

QTEST_APPLESS_MAIN(TestRandomEdits)
#include "tst_RandomEdits.moc"
