// The console beside a bare text view, and what a change of the profile costs.

#include "EditorHost.h"
#include "Settle.h"
#include "Timing.h"

#include "orvane/extender/OrvProfile.h"

#include "meridane/base/errors/NxDebugError.h"

#include <QApplication>
#include <QPushButton>
#include <QTextEdit>

#include <iostream>
#include <memory>
#include <thread>

namespace {

constexpr int lineCount = 20000;
constexpr const char* line = "src/scene/robot.mrd:12:7: a number was expected";

void addProfile(OrvPluginsManager& manager, const QString& name, const QString& running)
{
    const QList<OrvProfile::Entry> entries{{running, true, {QStringLiteral("*")}}};
    if (const auto error = manager.addProfile(std::make_unique<OrvProfile>(name, entries)))
        qFatal("%s", qUtf8Printable(*error));
}

/// The same lines, handed to the view straight away, until all is painted.
double appendLines(QTextEdit& view)
{
    view.clear();
    bench::settle();
    return bench::secondsToPainted(view.viewport(), [&view] {
        const QString text = QString::fromUtf8(line);
        for (int index = 0; index < lineCount; ++index) {
            view.setTextColor(Qt::darkGreen);
            view.append(text);
        }
    });
}

double writeLines(QTextEdit& view)
{
    view.clear();
    bench::settle();
    return bench::secondsToPainted(view.viewport(), [] {
        for (int index = 0; index < lineCount; ++index)
            std::cout << line;
    });
}

double postErrors(QTextEdit& view)
{
    view.clear();
    bench::settle();
    return bench::secondsToPainted(view.viewport(), [] {
        std::thread thread([] {
            const VbString text(line);
            for (int index = 0; index < lineCount; ++index)
                NxDebugError::post(NxDebugError::Information, text);
        });
        thread.join();
    });
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    bench::EditorHost host;
    addProfile(host.manager, QStringLiteral("All"), QStringLiteral("*"));
    addProfile(host.manager, QStringLiteral("All again"), QStringLiteral("*"));
    OrvProfile* const first = host.manager.findProfile(QStringLiteral("All"));
    OrvProfile* const second = host.manager.findProfile(QStringLiteral("All again"));
    host.manager.setActiveProfile(first);
    bench::settle();
    auto* const console = host.window.findChild<QTextEdit*>(QStringLiteral("m_consoleOutput"));

    // In a dock, too, as far from its window and as large.
    bench::DockWindow bareWindow;
    auto* const bare = new QTextEdit;
    bare->setReadOnly(true);
    bare->setFixedSize(console->size());
    bareWindow.addDock()->setWidget(bare);
    bareWindow.show();
    bench::settle();
    constexpr int textRounds = 5;
    bench::compare(
        "console: 20,000 lines through std::cout", 1.05, textRounds, [console] { return writeLines(*console); },
        [bare] { return appendLines(*bare); });
    bench::compare(
        "console: 20,000 errors of another thread", 1.05, textRounds, [console] { return postErrors(*console); },
        [bare] { return appendLines(*bare); });
    console->clear();

    NxField* field = &host.node->sfFloat;
    OrvProfile* profile = first;
    host.services.selectField(field);
    bench::settle();
    constexpr int rounds = 41;
    bench::compare(
        "switching the profile, and changing the selection", 20, rounds,
        [&] {
            profile = profile == first ? second : first;
            return bench::seconds([&] {
                host.manager.setActiveProfile(profile);
                bench::settle();
            });
        },
        [&] {
            field = field == &host.node->sfFloat ? static_cast<NxField*>(&host.node->sfDouble) : &host.node->sfFloat;
            return bench::seconds([&] {
                host.services.selectField(field);
                bench::settle();
            });
        });
    return 0;
}
