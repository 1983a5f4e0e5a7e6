// The tool's window with a large scene: what a selection costs, and for how long opening, closing and the like hold it
// up.

#include "Figure.h"
#include "LargeScene.h"
#include "Settle.h"
#include "Timing.h"

#include "orvane/app/compare/SceneComparer.h"
#include "orvane/app/recovery/SceneRecovery.h"
#include "orvane/app/scene/NodeCommands.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/window/MainWindow.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/scene/file/NxSceneReader.h"
#include "meridane/scene/nodes/NxComplexity.h"

#include <QApplication>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTreeView>

#include <algorithm>
#include <array>

namespace {

constexpr double millisecondsPerSecond = 1e3;

class ToolWindow {
public:
    ToolWindow()
        : window(session)
    {
        constexpr QSize size(1200, 800);
        window.resize(size);
        window.show();
        bench::settle();
    }

    /// Opens a file and gives the longest time for which the window didn't answer, in seconds.
    double open(const QString& fileName)
    {
        bool isOpen = false;
        const QMetaObject::Connection connection
            = QObject::connect(&window, &MainWindow::settled, &window, [&isOpen](const orvane::Result<>& result) {
                  if (!result)
                      qFatal("%s", qUtf8Printable(result.error()));
                  isOpen = true;
              });
        window.openFile(fileName);
        const double longest = longestTurn([&isOpen] { return isOpen; });
        QObject::disconnect(connection);
        bench::settle();
        return longest;
    }

    /// Compares the scene with another and gives the longest time for which the window didn't answer.
    double compare(const NxRef<NxGroup>& other)
    {
        window.compareWith(other, QStringLiteral("other.mrd"));
        const auto* const comparer = window.findChild<SceneComparer*>();
        const double longest = longestTurn([comparer] { return !comparer->isWorking(); });
        bench::settle();
        return longest;
    }

    /// Closes the scene and gives the longest time for which the window didn't answer.
    double close()
    {
        const double closing = bench::seconds([this] { window.document().close(); });
        return std::max(closing, longestTurn([this] { return !session.disposal().isBusy(); }));
    }

    /// Keeps the scene in a recovery file, first with one change, then as a whole. Gives the longest times for which
    /// the window didn't answer.
    std::array<double, 2> keep()
    {
        const QTemporaryDir folder;
        SceneRecovery recovery(session.services(), session.document(), RecoveryFolder(folder.path()), {});
        bool isKept = false;
        QObject::connect(&recovery, &SceneRecovery::kept, &recovery, [&isKept] { isKept = true; });
        session.services().pushCommand(
            new RenameNodeCommand(session.document().scene()->getChild(0), VbString("changed")));
        bench::settle(); // what the tree does about the name isn't measured here
        std::array<double, 2> longest{};
        longest[0] = longestTurn([&isKept] { return isKept; });
        isKept = false;
        recovery.leaveFile();
        longest[1] = longestTurn([&isKept, &recovery] { return isKept && !recovery.isReplacing(); });
        session.services().undo();
        bench::settle();
        return longest;
    }

    /// Selects two nodes in the middle of the scene in turn; gives the times.
    std::vector<double> selectNodes(int rounds)
    {
        auto* const tree = window.findChild<QTreeView*>(QStringLiteral("sceneTree"));
        const QModelIndex group = tree->model()->index(0, 0);
        tree->expand(group);
        bench::settle();
        const int middle = tree->model()->rowCount(group) / 2;
        std::vector<double> times;
        for (int round = 0; round < rounds; ++round) {
            const QModelIndex index = tree->model()->index(middle + round % 2, 0, group);
            times.push_back(millisecondsPerSecond
                * bench::secondsToPainted(tree->viewport(), [&] { tree->setCurrentIndex(index); }));
        }
        return times;
    }

    Session session{AppSettings::Mode::None};
    MainWindow window;

private:
    template <typename Done>
    static double longestTurn(Done done)
    {
        QEventLoop loop;
        double longest = 0;
        while (!done())
            longest = std::max(longest, bench::seconds([&loop] { loop.processEvents(); }));
        return longest;
    }
};

/// The large scene, with one other value or with other values in all nodes.
NxRef<NxGroup> otherScene(bool allDiffer)
{
    NxSceneReader reader(bench::sceneText(bench::largeSceneNodes), "other.mrd");
    reader.run();
    NxRef<NxGroup> scene = reader.takeScene();
    const auto nodes = scene->getChildren().front()->getChildren();
    for (NxNode* const node : allDiffer ? nodes : nodes.subspan(nodes.size() / 2, 1))
        dynamic_cast<NxComplexity*>(node)->textureQuality.setValue(1);
    return scene;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QString small = QString::fromStdString(bench::sceneFile(10));
    const QString large = QString::fromStdString(bench::sceneFile(bench::largeSceneNodes));
    ToolWindow tool;
    std::vector<double> smallTimes;
    std::vector<double> largeTimes;
    std::vector<double> opening;
    std::vector<double> closing;
    constexpr int rounds = 5;
    constexpr int selections = 41;
    // One selection alone can't alternate between two scenes, of which one is open at a time.
    for (int round = 0; round < rounds; ++round) {
        tool.open(small);
        const std::vector<double> inSmall = tool.selectNodes(selections);
        smallTimes.insert(smallTimes.end(), inSmall.begin(), inSmall.end());
        tool.close();
        opening.push_back(tool.open(large) * millisecondsPerSecond);
        const std::vector<double> inLarge = tool.selectNodes(selections);
        largeTimes.insert(largeTimes.end(), inLarge.begin(), inLarge.end());
        closing.push_back(tool.close() * millisecondsPerSecond);
    }
    bench::report({"selecting one of 1,000,000 nodes, and one of 10", "ms", bench::median(largeTimes),
        bench::median(smallTimes), 1.1});
    bench::report({"opening 1,000,000 nodes: longest wait of the window", "ms", bench::median(opening), 0, 0});
    bench::report({"closing 1,000,000 nodes: longest wait of the window", "ms", bench::median(closing), 0, 100});
    tool.open(large);
    std::array<std::vector<double>, 2> keeping;
    for (int round = 0; round < rounds; ++round) {
        const std::array<double, 2> longest = tool.keep();
        for (std::size_t i = 0; i < keeping.size(); ++i)
            keeping[i].push_back(longest[i] * millisecondsPerSecond);
    }
    bench::report({"keeping a change of 1,000,000 nodes for recovery: longest wait of the window", "ms",
        bench::median(keeping[0]), 0, 8});
    bench::report({"keeping all of 1,000,000 nodes for recovery: longest wait of the window", "ms",
        bench::median(keeping[1]), 0, 8});
    for (const bool allDiffer : {false, true}) {
        std::vector<double> comparing;
        const NxRef<NxGroup> other = otherScene(allDiffer);
        for (int round = 0; round < rounds; ++round)
            comparing.push_back(tool.compare(other) * millisecondsPerSecond);
        bench::report({allDiffer ? "comparing 1,000,000 nodes, all different: longest wait of the window"
                                 : "comparing 1,000,000 nodes, one different: longest wait of the window",
            "ms", bench::median(comparing), 0, 100});
    }
    QFile::remove(small);
    QFile::remove(large);
    return 0;
}
