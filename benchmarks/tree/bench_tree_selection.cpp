// Selecting many nodes in the scene tree, and what must not block the window: figures of tool tips and painted rows.

#include "Figure.h"
#include "Timing.h"

#include "orvane/app/tree/NodeSelection.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/tree/TreeActions.h"

#include "meridane/gl/places/NodeFigures.h"
#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/nodes/NxMesh.h"

#include <QAction>
#include <QApplication>
#include <QStatusBar>
#include <QTreeView>

#include <algorithm>
#include <chrono>
#include <functional>
#include <memory>
#include <vector>

namespace {

constexpr int allNodes = 1'000'000;
constexpr std::size_t wantedNodes = 100'000;
constexpr double milliseconds = 1000;

/// A scene of a million nodes, in groups of that many children.
struct Scene {
    explicit Scene(int inEach)
    {
        for (int count = 0; count < allNodes; count += inEach) {
            const NxRef<NxGroup> group(new NxGroup);
            for (int i = 1; i < inEach; ++i) {
                group->addChild(new NxMesh);
                nodes.push_back(group->getChild(i - 1));
            }
            root->addChild(group.get());
        }
        panel.resize(330, 700);
        panel.setScene(root.get());
        panel.show();
        QApplication::processEvents();
    }

    NxRef<NxGroup> root{new NxGroup};
    std::vector<NxNode*> nodes; // but the groups
    SceneTreePanel panel;
    QStatusBar bar;
    TreeActions actions{&panel, &bar};
};

/// The processor time of a part, which other programs change little.
double secondsOf(const std::function<void()>& part)
{
    const double begin = bench::processorTime();
    part();
    return bench::processorTime() - begin;
}

double median(Scene& scene, const std::function<void()>& action)
{
    std::vector<double> times;
    for (int round = 0; round < 5; ++round) {
        scene.panel.selection().select({});
        times.push_back(milliseconds * secondsOf([&] {
            action();
            scene.panel.grab();
        }));
    }
    return bench::median(times);
}

void measureSelecting(const char* name, int inEach, std::size_t distance)
{
    Scene scene(inEach);
    std::vector<NxNode*> wanted;
    for (std::size_t i = 0; i < scene.nodes.size() && wanted.size() < wantedNodes; i += distance)
        wanted.push_back(scene.nodes[i]);
    constexpr double bar = 100;
    bench::report({std::string("100,000 nodes selected: ") + name, "ms",
        median(scene, [&] { scene.panel.selection().select(wanted); }), 0, bar});
    const QModelIndexList rows = scene.panel.selection().indexes();
    bench::report({std::string("100,000 rows selected: ") + name, "ms",
        median(scene, [&] { scene.panel.selection().selectIndexes(rows); }), 0, bar});
}

void measureWaits()
{
    Scene scene(allNodes / 10);
    constexpr double bar = 8;
    meridane::NodeFigures figures(std::vector<NxNode*>{scene.root.get()});
    double longest = 0;
    for (bool isDone = false; !isDone;) {
        longest = std::max(
            longest, milliseconds * secondsOf([&] { isDone = figures.advance(std::chrono::milliseconds(4)); }));
    }
    bench::report({"tool tip over 1,000,000 nodes: longest slice", "ms", longest, 0, bar});
    const QModelIndex group = scene.panel.model()->index(0, 0);
    bench::report({"tool tip, folded count of 100,000 nodes", "ms",
        median(scene,
            [&] {
                group.data(Qt::ToolTipRole).toString();
                group.data(SceneTreeModel::ChildCountRole).toInt();
            }),
        0, 0});
    auto* const unfold = scene.panel.findChild<QAction*>(QStringLiteral("tree.unfoldTo9"));
    bench::report({"unfolding 1,000,000 nodes to a level, cut", "ms", median(scene, [&] { unfold->trigger(); }), 0, 0});
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    measureSelecting("one group", allNodes, 1);
    measureSelecting("every fifth of one group", allNodes, 5);
    measureSelecting("in 10,000 groups", 100, 9);
    measureWaits();
    return 0;
}
