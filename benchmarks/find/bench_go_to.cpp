// Going to a place of a scene of 1,000,000 named nodes by letters of it, and the window meanwhile.

#include "Figure.h"
#include "NamedScene.h"
#include "Settle.h"
#include "Timing.h"

#include "orvane/app/scene/Session.h"
#include "orvane/app/window/MainWindow.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

constexpr int rounds = 7;
constexpr double milliseconds = 1000;

void press(QWidget* line, int key, const QString& text)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QApplication::sendEvent(line, &event);
}

/// The rows of the picker, and what its first one says.
QString firstRow(const QListView& list)
{
    return list.model()->rowCount() > 0 ? list.model()->index(0, 0).data().toString() : QString();
}

struct Times {
    std::vector<double> firsts;
    std::vector<double> alls;
    double longest = 0;
};

/// Opens the picker and types a text, a key in each turn of the event loop. After the last key the time until a row
/// has these letters, and until nothing is searched any more; and the longest turn of the event loop.
void typeOnce(MainWindow& window, const QString& text, const QString& wanted, Times& times)
{
    const auto turn = [&times](auto work) {
        const double begin = bench::processorTime();
        work();
        times.longest = std::max(times.longest, bench::processorTime() - begin);
    };
    window.findChild<QAction*>(QStringLiteral("go.to"))->trigger();
    bench::settle();
    auto* const line = window.findChild<QLineEdit*>(QStringLiteral("pickerLine"));
    auto* const list = window.findChild<QListView*>(QStringLiteral("pickerList"));
    for (const QChar letter : text.chopped(1)) {
        turn([&] { press(line, 0, letter); });
        turn([] { QApplication::processEvents(); });
    }
    const double begin = bench::processorTime();
    turn([&] { press(line, 0, text.back()); });
    double first = 0;
    while (first == 0) {
        turn([] { QApplication::processEvents(); });
        if (firstRow(*list).contains(wanted))
            first = bench::processorTime() - begin;
    }
    times.firsts.push_back(first);
    bench::settle();
    times.alls.push_back(bench::processorTime() - begin);
    press(line, Qt::Key_Escape, {});
    bench::settle();
}

void measure(MainWindow& window, const char* about, const QString& text, const QString& wanted)
{
    Times times;
    for (int round = 0; round < rounds; ++round)
        typeOnce(window, text, wanted, times);
    const std::string name = std::string("go to, 1,000,000 nodes, ") + about;
    bench::report({name + ": first rows", "ms", milliseconds * bench::median(times.firsts), 0, 50});
    bench::report({name + ": all rows", "ms", milliseconds * bench::median(times.alls), 0, 0});
    bench::report({name + ": longest wait", "ms", milliseconds * times.longest, 0, 8});
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("ORVANE_VIEW", "0");
    const QApplication application(argc, argv);
    const NxRef<NxGroup> scene = bench::makeNamedScene();
    Session session(AppSettings::Mode::None);
    MainWindow window(session);
    window.show();
    session.document().open(scene, {});
    bench::settle();
    measure(window, "all nodes", QStringLiteral("wheel"), QStringLiteral("wheel"));
    measure(window, "the last node", QStringLiteral("part999999"), QStringLiteral("999999"));
    measure(window, "a field", QStringLiteral("part 5.diff"), QStringLiteral("diffuse"));
    return EXIT_SUCCESS;
}
