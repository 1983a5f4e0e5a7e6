#include "meridane/query/QueryFacts.h"
#include "meridane/query/SceneSearch.h"
#include "meridane/scene/check/NxSceneProblem.h"
#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/nodes/NodeTraversal.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxSwitch.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QTest>

#include <random>
#include <set>
#include <string>
#include <vector>

using meridane::Journal;
using meridane::NodeIndex;
using meridane::Query;
using meridane::SceneSearch;
using meridane::WorkBudget;

namespace {

Query query(const std::string& text)
{
    return std::get<Query>(Query::parse(text));
}

/// A budget that is spent at once, so that each step does the least.
WorkBudget leastBudget()
{
    return {std::chrono::nanoseconds(0)};
}

struct RandomScene {
    explicit RandomScene(unsigned int seed)
        : engine(seed)
        , scene(new NxGroup)
    {
        static const std::vector<const char*> names{"arm", "Leg", "\u00C4rmel", "arm", "base", "", "x"};
        std::vector<NxGroup*> groups{scene.get()};
        std::vector<NxNode*> nodes;
        for (int i = 0; i < 300; ++i) {
            NxGroup& group = *groups[engine() % groups.size()];
            if (engine() % 6 == 0 && !nodes.empty()) {
                group.addChild(nodes[engine() % nodes.size()]); // in a further place, unless it holds the group
                continue;
            }
            NxNode* node = nullptr;
            if (engine() % 3 == 0) {
                groups.push_back(new NxTransform);
                node = groups.back();
            } else {
                node = new NxMaterial;
            }
            node->setName(names[engine() % names.size()]);
            group.addChild(node);
            nodes.push_back(node);
        }
        journal = std::make_unique<Journal>(*scene);
        while (journal->run(std::chrono::hours(1))) { }
    }

    std::mt19937 engine;
    NxRef<NxGroup> scene;
    std::unique_ptr<Journal> journal;
};

/// Whether a node matches, or a node below it, in the plainest way.
bool leads(const Query& wanted, const NxNode& node)
{
    return std::ranges::any_of(
        node.getChildren(), [&](const NxNode* child) { return wanted.matches(*child) || leads(wanted, *child); });
}

void compare(const SceneSearch& search, const Query& wanted, const NxGroup& scene)
{
    std::vector<const NxNode*> expected;
    meridane::NodeTraversal nodes(scene);
    while (const NxNode* const node = nodes.next()) {
        const bool isHit = !wanted.isEmpty() && wanted.matches(*node);
        QCOMPARE(search.isHit(*node), isHit);
        QCOMPARE(search.leadsToHit(*node), !wanted.isEmpty() && leads(wanted, *node));
        if (isHit)
            expected.push_back(node);
    }
    std::vector<const NxNode*> found;
    for (const SceneSearch::Entry entry : search.hits())
        found.push_back(&search.index().node(entry));
    QCOMPARE(found, expected);
}

} // namespace

/// Searching a scene in slices.
class TestSceneSearch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void hitsAreThoseOfThePlainestSearch()
    {
        for (unsigned int seed = 0; seed < 30; ++seed) {
            const RandomScene random(seed);
            SceneSearch search(*random.journal);
            for (const char* const text :
                {"arm", "", "t:Transform", "armel or leg", "not t:Material", "f:translation", "zzz", "/^a.*m$/"}) {
                search.begin(query(text));
                while (search.step(leastBudget())) { }
                QVERIFY(search.isComplete());
                compare(search, query(text), *random.scene);
            }
        }
    }

    void theIndexHasNamesClassesAndPlaces()
    {
        const RandomScene random(7);
        NodeIndex index(*random.journal);
        while (index.extend(5)) { }
        meridane::NodeTraversal nodes(*random.scene);
        NodeIndex::Entry entry = 0;
        while (NxNode* const node = nodes.next()) {
            QCOMPARE(&index.node(entry), node);
            QCOMPARE(index.path(entry), nodes.path());
            QVERIFY(index.type(entry) == node->getTypeId());
            QCOMPARE(index.find(*node).value(), entry);
            ++entry;
        }
        QCOMPARE(std::size_t{entry}, index.size());
        QVERIFY(index.isComplete());
        QVERIFY(!index.uses().empty());
        const NxRef<NxMaterial> other(new NxMaterial);
        QVERIFY(!index.find(*other));
    }

    void changedNodesAreComparedAgain()
    {
        RandomScene random(3);
        SceneSearch search(*random.journal);
        search.begin(query("arm"));
        std::vector<NxNode*> all;
        meridane::NodeTraversal nodes(*random.scene);
        while (NxNode* const node = nodes.next())
            all.push_back(node);
        for (int i = 0; i < 500; ++i) {
            NxNode& node = *all[random.engine() % all.size()];
            node.setName(random.engine() % 2 == 0 ? "my arm, which has a long name" : "leg");
            const bool was = search.isHit(node);
            const bool changed = search.update(node);
            QCOMPARE(changed, search.isHit(node) != was);
            for (unsigned int step = random.engine() % 4; step > 0; --step)
                search.step(leastBudget());
        }
        while (search.step(leastBudget())) { }
        compare(search, query("arm"), *random.scene);
    }

    void aRestartedSearchKnowsTheSceneAsItIsNow()
    {
        RandomScene random(7);
        SceneSearch search(*random.journal);
        const Query wanted = query("arm or x");
        search.begin(wanted);
        while (search.step(std::chrono::hours(1))) { }
        random.journal->record();
        for (int i = 0; i < 4; ++i) {
            NxGroup& scene = *random.scene;
            scene.removeChild(0);
            for (int added = 0; added < i * 3000; ++added) {
                auto* const node = new NxMaterial;
                node->setName(added % 2 == 0 ? "arm of a longer name" : "leg");
                scene.insertChild(node, 0);
            }
            if (i == 3) // the memory of many for few
                scene.removeAllChildren();
            search.restart();
            QCOMPARE(search.hits().size(), std::size_t{0});
            search.begin(wanted);
            while (search.step(leastBudget())) { }
            compare(search, wanted, scene);
        }
    }

    void factsAreUsed()
    {
        const RandomScene random(5);
        meridane::QueryFacts facts;
        NxSceneProblem problem;
        problem.kind = NxProblemKind::UnusedMaterial;
        problem.node = random.scene->getChild(0);
        facts.add(problem);
        SceneSearch search(*random.journal);
        search.begin(query("unused"), std::make_shared<meridane::QueryFacts>(facts));
        while (search.step(leastBudget())) { }
        QCOMPARE(search.hits().size(), std::size_t{1});
        QVERIFY(search.isHit(*random.scene->getChild(0)));
        search.begin(query("unused"));
        while (search.step(leastBudget())) { }
        QVERIFY(search.hits().empty());
    }

    void hitsAreCountedUpToAnEntry()
    {
        const NxRef<NxGroup> scene(new NxGroup);
        for (int i = 0; i < 10; ++i) {
            auto* const node = new NxMaterial;
            node->setName(i % 3 == 1 ? "arm" : "leg");
            scene->addChild(node);
        }
        Journal journal(*scene);
        while (journal.run(std::chrono::hours(1))) { }
        SceneSearch search(journal);
        search.begin(query("arm"));
        while (search.step(leastBudget())) { }
        QCOMPARE(search.hits().size(), std::size_t{3});
        QCOMPARE(search.hitsBefore(0), std::size_t{0});
        QCOMPARE(search.hitsBefore(1), std::size_t{0});
        QCOMPARE(search.hitsBefore(2), std::size_t{1});
        QCOMPARE(search.hitsBefore(9), std::size_t{3});
    }
};

QTEST_APPLESS_MAIN(TestSceneSearch)
#include "tst_SceneSearch.moc"
