// Loading the default plug-in with all its extensions, beside making the same widgets by hand.

#include "HandMade.h"
#include "OrvDefaults.h"
#include "Timing.h"

#include <QApplication>

#include <memory>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    std::unique_ptr<OrvDefaults> plugin;
    const auto load = [&plugin] {
        plugin = std::make_unique<OrvDefaults>();
        plugin->load();
    };
    const auto unload = [&plugin] {
        plugin->unload();
        plugin.reset();
    };
    load();
    const bench::HandMade sameWidgets(QApplication::allWidgets());
    unload();

    constexpr int rounds = 51;
    bench::compare(
        "load of the plug-in with all its extensions", 1.5, rounds,
        [&] {
            const double time = bench::seconds(load);
            unload();
            return time;
        },
        [&sameWidgets] {
            bench::HandMade::Widgets widgets;
            return bench::seconds([&] { widgets = sameWidgets.make(); });
        });
    return 0;
}
