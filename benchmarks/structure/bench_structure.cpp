// Removing, duplicating and moving 100,000 selected nodes, against the same done with the toolkit alone.

#include "Timing.h"

#include "orvane/app/scene/Session.h"
#include "orvane/app/structure/NodeEditor.h"
#include "orvane/app/structure/NodeEdits.h"
#include "orvane/app/structure/TreeNodes.h"
#include "orvane/app/tree/SceneTreePanel.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QApplication>

#include <functional>
#include <memory>
#include <numeric>
#include <string>

namespace {

constexpr int siblings = 200'000;
constexpr int selected = 100'000;
constexpr int firstSelected = 50'000;

/// A scene with two groups, one of them full.
NxRef<NxGroup> makeScene()
{
    NxRef<NxGroup> scene(new NxGroup);
    const NxRef<NxGroup> full(new NxGroup);
    std::vector<NxNode*> nodes;
    for (int i = 0; i < siblings; ++i) {
        auto* const node = new NxTransform;
        node->setName(VbString("part " + std::to_string(i)));
        node->translation.setValue(VbVec3f(static_cast<float>(i), 1, 2));
        nodes.push_back(node);
    }
    full->replaceChildren(0, 0, nodes);
    scene->addChild(full.get());
    scene->addChild(new NxGroup);
    return scene;
}

NxGroup& groupOf(NxGroup& scene, int index)
{
    return static_cast<NxGroup&>(*scene.getChild(index));
}

void settle()
{
    while (NxDelayQueue::getDefault().process()) { }
    QCoreApplication::processEvents();
}

/// The tool's part of the work: a scene in a tree, in which nodes are selected.
class Tool {
public:
    Tool()
        : m_session(AppSettings::Mode::None)
        , m_editor(m_session, &m_tree)
    {
        const NxRef<NxGroup> scene = makeScene();
        m_session.document().open(scene, {});
        m_tree.setScene(scene.get());
        m_tree.resize(400, 800);
        m_tree.show();
        meridane::NodeRows rows{{scene.get(), &groupOf(*scene, 0)}, {0}, std::vector<int>(selected)};
        std::iota(rows.rows.begin(), rows.rows.end(), firstSelected);
        orvane::selectNodes(m_tree, {rows});
        settle();
    }
    ~Tool() { m_tree.setScene(nullptr); }
    Tool(const Tool&) = delete;
    Tool& operator=(const Tool&) = delete;

    using Make = std::function<MadeEdit(NxGroup& scene, const meridane::NodeSet& nodes)>;
    double apply(const Make& make)
    {
        return bench::seconds([&] {
            m_editor.apply(make(*m_editor.scene(), m_editor.selected()));
            settle();
        });
    }
    double undo()
    {
        return bench::seconds([this] {
            m_session.services().undo();
            settle();
        });
    }

private:
    Session m_session;
    SceneTreePanel m_tree;
    NodeEditor m_editor;
};

/// The same with the toolkit alone: a scene whose journal records, and a tree that shows it.
class Bare {
public:
    Bare()
        : m_session(AppSettings::Mode::None)
    {
        const NxRef<NxGroup> scene = makeScene();
        m_session.document().open(scene, {});
        m_tree.setScene(scene.get());
        m_tree.resize(400, 800);
        m_tree.show();
        settle();
    }
    ~Bare() { m_tree.setScene(nullptr); }
    Bare(const Bare&) = delete;
    Bare& operator=(const Bare&) = delete;

    double apply(const std::function<void(NxGroup& full, NxGroup& empty)>& change)
    {
        NxGroup& scene = *m_session.document().scene();
        return bench::seconds([&] {
            change(groupOf(scene, 0), groupOf(scene, 1));
            settle();
        });
    }

private:
    Session m_session;
    SceneTreePanel m_tree;
};

std::vector<NxNode*> chosen(const NxGroup& full)
{
    const auto nodes = full.getChildren().subspan(firstSelected, selected);
    return {nodes.begin(), nodes.end()};
}

void removeBare(NxGroup& full, NxGroup& /*empty*/)
{
    full.replaceChildren(firstSelected, selected, {});
}

void duplicateBare(NxGroup& full, NxGroup& /*empty*/)
{
    std::vector<NxNode*> copies;
    for (const NxNode* const node : chosen(full)) {
        auto* const copy = new NxTransform;
        copy->setName(VbString(std::string(node->getName().view()) + " copy"));
        copy->translation.copyFrom(static_cast<const NxTransform*>(node)->translation);
        copies.push_back(copy);
    }
    full.replaceChildren(firstSelected + selected, 0, copies);
}

void moveBare(NxGroup& full, NxGroup& empty)
{
    const std::vector<NxNode*> nodes = chosen(full);
    const std::vector<NxRef<NxNode>> held(nodes.begin(), nodes.end());
    full.replaceChildren(firstSelected, selected, {});
    empty.replaceChildren(0, 0, nodes);
}

void compare(const std::string& name, const Tool::Make& make, void (*bare)(NxGroup& full, NxGroup& empty))
{
    constexpr double bar = 3;
    constexpr int rounds = 5;
    const auto bareTime = [bare] { return std::make_unique<Bare>()->apply(bare); };
    bench::compare(
        "structure: " + name, bar, rounds, [&make] { return std::make_unique<Tool>()->apply(make); }, bareTime);
    bench::compare(
        "structure: " + name + ", undone", bar, rounds,
        [&make] {
            Tool tool;
            tool.apply(make);
            return tool.undo();
        },
        bareTime);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    using Set = meridane::NodeSet;
    compare(
        "remove 100,000 nodes", [](NxGroup& scene, const Set& nodes) { return NodeEdits(scene).remove(nodes); },
        &removeBare);
    compare(
        "duplicate 100,000 nodes", [](NxGroup& scene, const Set& nodes) { return NodeEdits(scene).duplicate(nodes); },
        &duplicateBare);
    compare(
        "move 100,000 nodes to another group",
        [](NxGroup& scene, const Set& nodes) {
            const NodeSpot end{{&scene, &groupOf(scene, 1)}, {1}, 0};
            return NodeEdits(scene).move(nodes, end, NodePlaces::Keep);
        },
        &moveBare);
    return 0;
}
