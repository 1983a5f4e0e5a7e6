// A million lines into the log while its dock is shown, and the window meanwhile.

#include "Figure.h"
#include "Settle.h"
#include "Timing.h"

#include "orvane/app/docks/LogDock.h"
#include "orvane/app/log/LogBook.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/window/MainWindow.h"

#include <QApplication>

#include <algorithm>
#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr int rounds = 5;
constexpr int lines = 1'000'000;

/// Adds lines on a thread; returns the longest turn of the event loop, in processor time of the process.
double longestTurn(LogBook& book, bool areEqual)
{
    std::atomic<bool> isDone = false;
    std::thread writer([&] {
        for (int i = 0; i < lines; ++i)
            book.add(NxSeverity::Warning, QStringLiteral("benchmark"),
                QStringLiteral("/robot/arm.rotation: the axis of length %1 isn't used").arg(areEqual ? 0 : i));
        isDone = true;
    });
    double longest = 0;
    while (!isDone || book.lineCount() + book.droppedCount() < lines) {
        const double begin = bench::processorTime();
        QApplication::processEvents();
        longest = std::max(longest, bench::processorTime() - begin);
    }
    writer.join();
    return longest;
}

void measure(LogBook& book, const std::string& about, bool areEqual)
{
    std::vector<double> turns;
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        book.clear();
        bench::settle();
        const double begin = bench::processorTime();
        turns.push_back(longestTurn(book, areEqual));
        times.push_back(bench::processorTime() - begin);
    }
    constexpr double milliseconds = 1000;
    constexpr double longestAllowed = 50;
    const std::string name = "log, 1,000,000 " + about;
    bench::report({name + ": all are taken in", "ms", milliseconds * bench::median(times), 0, 0});
    bench::report({name + ": longest turn", "ms", milliseconds * bench::median(turns), 0, longestAllowed});
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("ORVANE_VIEW", "0");
    const QApplication application(argc, argv);
    Session session(AppSettings::Mode::None);
    MainWindow window(session);
    window.show();
    LogDock* const dock = window.findChild<LogDock*>();
    dock->show();
    bench::settle();
    measure(dock->book(), "lines", false);
    measure(dock->book(), "equal lines", true);
    return 0;
}
