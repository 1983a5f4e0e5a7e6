#include "gl/DrawingBench.h"

#include "meridane/gl/places/detail/PlacedScene.h"
#include "meridane/scene/nodes/NxComplexity.h"
#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxSwitch.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <functional>
#include <random>
#include <utility>

using namespace meridane;

namespace {

double numberOf(const NxNode* node)
{
    return static_cast<double>(reinterpret_cast<std::uintptr_t>(node));
}

using NodeMaker = std::function<NxRef<NxNode>()>;

/// Makes changes of all kinds, in no order, to a scene with shared nodes. Nodes die, and new ones take their memory.
class Editor {
public:
    Editor(NxGroup& scene, unsigned int seed)
        : m_random(seed)
        , m_scene(&scene)
    {
        for (int i = 0; i < 4; ++i) {
            add([] { return make<NxTransform>(); });
            add([] { return make<NxSwitch>(); });
            add([] { return make<NxGroup>(); });
            add([this] { return plain(real(0, 1), real(0, 1), real(0, 1)); });
            add([this] { return rectangle(-0.3F, -0.3F, 0.3F, 0.3F, real(-0.5F, 0.5F)); });
        }
        add([] { return ball(0.3F, 12); });
        add([] { return meshOf({{-0.5F, 0, 0}, {0.5F, 0, 0}}, NxMesh::LINES); });
        for (int i = 0; i < 3; ++i)
            add([] { return fourPixels(); });
        add([] { return make<NxComplexity>(); });
        add([] { return make<NxDirectionalLight>(); });
    }

    void edit()
    {
        NxGroup& group = pickGroup();
        const std::size_t node = pick(m_nodes.size());
        switch (pick(9)) {
        case 0:
        case 1:
        case 2:
        case 3:
            if (group.getNumChildren() < 5)
                group.insertChild(
                    m_nodes[node].get(), static_cast<int>(pick(static_cast<std::size_t>(group.getNumChildren()) + 1)));
            break;
        case 4:
            group.removeChild(static_cast<int>(pick(5)));
            break;
        case 5:
            replace(node);
            break;
        default:
            change(*m_nodes[node]);
        }
    }

private:
    void add(NodeMaker makeNode)
    {
        m_nodes.push_back(makeNode());
        m_makers.push_back(std::move(makeNode));
    }

    NxGroup& pickGroup()
    {
        for (;;) {
            const std::size_t index = pick(m_nodes.size() + 1);
            if (index == m_nodes.size())
                return *m_scene;
            if (m_nodes[index]->isOfType(NxGroup::getClassTypeId()))
                return static_cast<NxGroup&>(*m_nodes[index]);
        }
    }

    /// Takes a node out of all groups, so that it dies, and puts a new one in some of its places.
    void replace(std::size_t index)
    {
        std::vector<std::pair<NxRef<NxGroup>, int>> places;
        const auto takeOut = [&](NxGroup& group) {
            for (int place = group.findChild(m_nodes[index].get()); place >= 0;
                 place = group.findChild(m_nodes[index].get())) {
                group.removeChild(place);
                places.emplace_back(&group, place);
            }
        };
        takeOut(*m_scene);
        for (const NxRef<NxNode>& node : m_nodes) {
            if (node->isOfType(NxGroup::getClassTypeId()) && !(node == m_nodes[index]))
                takeOut(static_cast<NxGroup&>(*node));
        }
        m_nodes[index] = nullptr;
        m_nodes[index] = m_makers[index]();
        while (!places.empty()) {
            const auto [group, place] = places.back();
            places.pop_back();
            if (pick(3) != 0)
                group->insertChild(m_nodes[index].get(), std::min(place, group->getNumChildren()));
        }
    }

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
            material->metalness.setValue(pick(2) == 0 ? 0 : real(0, 1));
            material->doubleSided.setValue(pick(2) == 0);
            material->alphaCutoff.setValue(pick(2) == 0 ? 0 : real(0, 1));
        } else if (auto* texture = dynamic_cast<NxTexture*>(&node)) {
            texture->role.setValue(static_cast<int>(pick(NxTexture::roleCount)));
            texture->role.setIgnored(pick(3) == 0);
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
        const auto lessOrMore = [this](auto& field) {
            if (pick(2) == 0)
                field.deleteValues(field.getNum() / 2, field.getNum() / 4);
            else if (field.getNum() < 2000)
                field.insertSpace(field.getNum() / 3, field.getNum() / 2 + 1);
        };
        switch (pick(8)) {
        case 0:
            mesh.positions.set1Value(0, VbVec3f(real(-0.5F, 0.5F), real(-0.5F, 0.5F), 0));
            break;
        case 1:
            mesh.colors.setValues(std::vector<VbVec4f>(pick(2), VbVec4f(1, 1, 0, real(0, 2))));
            break;
        case 2:
            mesh.normals.setIgnored(pick(2) == 0);
            break;
        case 3:
            mesh.indices.insertSpace(0, 6); // triangles without extent
            break;
        case 4:
            lessOrMore(mesh.positions);
            break;
        case 5:
            lessOrMore(mesh.normals);
            break;
        case 6:
            lessOrMore(mesh.indices);
            break;
        default:
            mesh.indices.set1Value(static_cast<int>(pick(6)), static_cast<int>(pick(10)) - 2);
        }
    }

    std::size_t pick(std::size_t count) { return m_random() % count; }
    float real(float least, float greatest) { return std::uniform_real_distribution<float>(least, greatest)(m_random); }

    std::mt19937 m_random;
    NxRef<NxGroup> m_scene;
    std::vector<NxRef<NxNode>> m_nodes;
    std::vector<NodeMaker> m_makers;
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
        std::vector<double> values{numberOf(item.mesh->node())};
        for (const TextureRecord* texture : look.textures)
            values.push_back(numberOf(texture != nullptr ? texture->node() : nullptr));
        const auto append = [&values](const auto& list) { values.insert(values.end(), list.begin(), list.end()); };
        for (std::size_t row = 0; row < 4; ++row)
            append(scene.table().worldTransformOf(item)[row]);
        append(asFloats(look.material != nullptr ? look.material->values : materialValues(nullptr)));
        const ComplexityValues complexity = look.complexity ? look.complexity->values : ComplexityValues();
        append(std::initializer_list<float>{
            static_cast<float>(complexity.type), complexity.value, complexity.textureQuality});
        for (const LightList* list = look.lights.get(); list != nullptr; list = list->above())
            append(std::bit_cast<std::array<float, 16>>(
                lightValues(list->light().light(), scene.table().worldTransforms[list->worldTransform()])));
        const NxBounds bounds = scene.tree().boundsOf(id);
        append(std::span(bounds.min.getValue(), 3));
        append(std::span(bounds.max.getValue(), 3));
        contents.push_back(std::move(values));
    }
    std::sort(contents.begin(), contents.end());
    return contents;
}

} // namespace

class TestRandomEdits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void followedEditsGiveThePlacesOfANewScene_data()
    {
        QTest::addColumn<unsigned int>("seed");
        for (unsigned int seed = 0; seed < 3; ++seed)
            QTest::addRow("%u", seed) << seed;
    }

    void followedEditsGiveThePlacesOfANewScene()
    {
        QFETCH(unsigned int, seed);
        DrawingBench bench;
        const auto scene = make<NxGroup>();
        Editor editor(*scene, seed);
        bench.drawing().setScene(scene.get());
        PlacedScene followed(deaf());
        followed.setRoot(scene.get());
        for (int round = 0; round < 40; ++round) {
            for (int i = 0; i < 10; ++i)
                editor.edit();
            // Pictures come before the pass of the queue, between its slices and behind it.
            for (int slice = 0; slice < 3; ++slice) {
                (void)bench.drawUntold();
                const NxDrawingCounts counts = bench.counts();
                followed.update();
                PlacedScene fresh(deaf());
                fresh.setRoot(scene.get());
                QCOMPARE(contentsOf(followed, scene.get()), contentsOf(fresh, scene.get()));
                QVERIFY(followed.tree().bounds() == fresh.tree().bounds());
                QVERIFY(bench.drawing().bounds() == fresh.tree().bounds());

                bench.renew(scene.get());
                (void)bench.drawUntold();
                QCOMPARE(counts.drawnItems, bench.counts().drawnItems);
                QCOMPARE(counts.culledItems, bench.counts().culledItems);
                QCOMPARE(counts.drawnCorners, bench.counts().drawnCorners);
                bench.takeBack();
                if (slice == 1) {
                    NxDelayQueue::getDefault().process();
                    continue;
                }
                NxDelayQueue::getDefault().process(std::chrono::nanoseconds(0));
                editor.edit();
            }
        }
        for (const QString& message : bench.takeMessages())
            QVERIFY2(
                message.contains(QLatin1String("draw")), qUtf8Printable(message)); // of meshes that don't fit together
    }
};

QTEST_APPLESS_MAIN(TestRandomEdits)
#include "tst_RandomEdits.moc"
