#include "app/fields/values/ManyNodes.h"

#include "orvane/app/fields/values/FieldWriter.h"

#include "meridane/query/Expression.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"

#include <QTest>

#include <algorithm>
#include <numeric>
#include <random>

/// Random edits of several nodes, checked against a model of numbers, with undo and redo.
class TestMultiEdit : public QObject {
    Q_OBJECT

private:
    static constexpr int nodeCount = 7;

    /// What the model knows of the intensity of a node.
    struct Light {
        float intensity = 1;
        bool isIgnored = false;

        bool operator==(const Light&) const = default;
    };
    using Lights = std::vector<Light>;

    static meridane::Expression expression(std::string_view text)
    {
        return std::get<meridane::Expression>(meridane::Expression::parse(text));
    }
    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }

    [[nodiscard]] static Lights lightsOf(const ManyNodes& many)
    {
        Lights lights;
        for (const auto& node : *many.nodes()) {
            const auto& light = dynamic_cast<const NxLight&>(*node);
            lights.push_back({light.intensity.getValue(), light.intensity.isIgnored()});
        }
        return lights;
    }

    /// Some nodes, in any order.
    std::vector<int> chooseNodes()
    {
        std::vector<int> nodes(nodeCount);
        std::iota(nodes.begin(), nodes.end(), 0);
        std::shuffle(nodes.begin(), nodes.end(), m_random);
        nodes.resize(static_cast<std::size_t>(1 + below(nodeCount)));
        return nodes;
    }
    static FieldSet setOf(const ManyNodes& many, const std::vector<int>& numbers)
    {
        const auto nodes = std::make_shared<FieldSet::Nodes>();
        for (const int number : numbers)
            nodes->push_back((*many.nodes())[static_cast<std::size_t>(number)]);
        return {*nodes->front()->getField("intensity"), nodes};
    }

    /// One edit in the scene, and the same in the model.
    void edit(FieldWriter& writer, const FieldSet& set, const std::vector<int>& nodes, Lights& lights)
    {
        const auto value = static_cast<float>(below(4)) / 4;
        const auto each = [&](const auto& change) {
            for (const int node : nodes)
                change(lights[static_cast<std::size_t>(node)]);
        };
        switch (below(7)) {
        case 0:
            QVERIFY(writer.setText(set, QString::number(static_cast<double>(value))));
            each([value](Light& light) { light.intensity = value; });
            break;
        case 1:
            QVERIFY(writer.setNumber(set, 0, expression("x / 2 + 0.25")));
            each([](Light& light) { light.intensity = light.intensity / 2 + 0.25F; });
            break;
        case 2:
            QVERIFY(writer.reset(set));
            each([](Light& light) { light.intensity = 1; });
            break;
        case 3: {
            const bool isIgnored = below(2) == 0;
            QVERIFY(writer.setIgnored(set, isIgnored));
            each([isIgnored](Light& light) { light.isIgnored = isIgnored; });
            break;
        }
        case 4: // refused as a whole as soon as one of them is 0.25
            if (writer.setNumber(set, 0, expression("1 / (x - 0.25)")))
                each([](Light& light) {
                    light.intensity = static_cast<float>(1 / (static_cast<double>(light.intensity) - 0.25));
                });
            else
                QVERIFY(std::ranges::any_of(
                    nodes, [&](int node) { return lights[static_cast<std::size_t>(node)].intensity == 0.25F; }));
            break;
        default:
            drag(writer, set, each);
        }
    }

    template <typename Each>
    void drag(FieldWriter& writer, const FieldSet& set, const Each& each)
    {
        writer.beginDrag(set, 0);
        double delta = 0;
        for (int move = below(4); move >= 0; --move) {
            delta = below(8) / 8.0;
            writer.drag(delta);
            if (below(2) == 0)
                ManyNodes::finish();
        }
        if (below(3) == 0) {
            writer.cancel();
            return;
        }
        writer.end();
        each([delta](
                 Light& light) { light.intensity = static_cast<float>(static_cast<double>(light.intensity) + delta); });
    }

private Q_SLOTS:
    void randomEditsOfSeveralNodesAreStepsToTheBit_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 1; seed <= 8; ++seed)
            QTest::addRow("%d", seed) << seed;
    }
    void randomEditsOfSeveralNodesAreStepsToTheBit()
    {
        QFETCH(const int, seed);
        m_random.seed(static_cast<unsigned>(seed));
        std::vector<NxRef<NxNode>> nodes;
        for (int i = 0; i < nodeCount; ++i)
            nodes.emplace_back(i % 2 == 0 ? static_cast<NxNode*>(new NxSpotLight) : new NxPointLight);
        ManyNodes many(nodes);
        FieldWriter writer(many.services());
        std::vector<Lights> states{Lights(nodeCount)}; // after each number of steps
        Lights lights = states.front();
        for (int i = 0; i < 150 && !QTest::currentTestFailed(); ++i) {
            auto& services = many.services();
            if (below(5) == 0 && services.canUndo()) {
                services.undo();
                lights = states[static_cast<std::size_t>(services.undoDepth())];
            } else if (below(5) == 0 && services.canRedo()) {
                services.redo();
                lights = states[static_cast<std::size_t>(services.undoDepth())];
            } else {
                const auto depth = static_cast<std::size_t>(services.undoDepth());
                const Lights before = lights;
                const std::vector<int> chosen = chooseNodes();
                edit(writer, setOf(many, chosen), chosen, lights);
                ManyNodes::finish();
                const bool changed = lights != before;
                QCOMPARE(static_cast<std::size_t>(services.undoDepth()), depth + (changed ? 1 : 0));
                if (changed) {
                    states.resize(depth + 1);
                    states.push_back(lights);
                }
            }
            ManyNodes::finish();
            QVERIFY(lightsOf(many) == lights);
        }
        while (many.services().canUndo() && !QTest::currentTestFailed()) {
            many.services().undo();
            QVERIFY(lightsOf(many) == states[static_cast<std::size_t>(many.services().undoDepth())]);
        }
    }

private:
    std::mt19937 m_random;
};

QTEST_MAIN(TestMultiEdit)
#include "tst_MultiEdit.moc"
