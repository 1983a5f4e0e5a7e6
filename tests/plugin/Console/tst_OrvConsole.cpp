#include "plugin/ConsoleRun.h"

#include "meridane/base/errors/NxDebugError.h"
#include "meridane/base/errors/NxErrorStack.h"
#include "meridane/base/errors/NxGLError.h"
#include "meridane/base/errors/NxMemoryError.h"
#include "meridane/base/errors/NxReadError.h"

#include <QDockWidget>
#include <QMetaMethod>
#include <QPushButton>
#include <QTextEdit>

#include <iostream>
#include <vector>

namespace {

struct Handler {
    NxErrorHandler callback;
    void* data;
    bool operator==(const Handler&) const = default;
};

template <typename... Errors>
std::vector<Handler> handlersOf()
{
    return {Handler{Errors::getHandlerCallback(), Errors::getHandlerData()}...};
}

std::vector<Handler> allHandlers()
{
    return handlersOf<NxDebugError, NxError, NxErrorStack, NxGLError, NxMemoryError, NxReadError>();
}

void countError(const NxError* /*error*/, void* counter)
{
    ++*static_cast<int*>(counter);
}

} // namespace

class TestOrvConsole : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void constructorWritesTheStrings()
    {
        const OrvConsole console;
        QCOMPARE(console.getName(), VbString("Console"));
        QCOMPARE(console.getAuthor(), VbString("KLD"));
        QCOMPARE(console.getDescription(), VbString("A console which prints the standard output and error."));
        QCOMPARE(console.getVersion(), VbString("1.0.0"));
    }

    void constructorMakesNoWidget()
    {
        const std::vector<Handler> handlers = allHandlers();
        const OrvConsole console;
        QVERIFY(ToolHarness::noWidgetIsLeft());
        QVERIFY(allHandlers() == handlers);
    }

    void activateSpeaksToTheShellInOrder()
    {
        ConsoleRun run;
        run.console.deactivate();
        QCOMPARE(run.shell.calls,
            QStringList({QStringLiteral("announceExtension Console 1"), QStringLiteral("addDockWidget Console 8"),
                QStringLiteral("removeDockWidget Console"), QStringLiteral("withdrawExtension Console")}));
    }

    void dockShowsTheFrame()
    {
        ConsoleRun run;
        auto* const dock = run.shell.window.findChild<QDockWidget*>();
        QCOMPARE(dock->windowTitle(), QStringLiteral("Console"));
        QCOMPARE(dock->widget()->objectName(), QStringLiteral("m_consoleFrame"));
        QVERIFY(run.output().isVisible());
        run.console.hide();
        QVERIFY(dock->isHidden());
        QVERIFY(dock->widget()->isHidden());
        run.console.show();
        QVERIFY(run.output().isVisible());
        run.console.deactivate();
        QVERIFY(dock->widget() == nullptr);
        QVERIFY(dock->isHidden());
    }

    void textStaysFromActivationToActivation()
    {
        ConsoleRun run;
        std::cout << "first";
        run.console.deactivate();
        run.console.activate();
        std::cout << "second";
        QCOMPARE(run.lines(), QStringList({QStringLiteral("first"), QStringLiteral("second")}));
        QVERIFY(run.output().isVisible());
    }

    void formerHandlersAreNotCalledAndComeBack()
    {
        int calls = 0;
        NxReadError::setHandlerCallback(&countError, &calls);
        NxError::setHandlerCallback(&countError, &calls);
        const std::vector<Handler> before = allHandlers();
        {
            const ConsoleRun run;
            NxError::post(VbString("text"));
            NxReadError::post(VbString("file"), 1, 2, VbString("text"));
            QCOMPARE(run.lines().size(), 2);
            const std::vector<Handler> meanwhile = allHandlers();
            for (const Handler& handler : meanwhile)
                QVERIFY(handler == meanwhile.front());
            QVERIFY(meanwhile.front().data != &calls);
        }
        QVERIFY(allHandlers() == before);
        QCOMPARE(calls, 0);
        NxError::post(VbString("text"));
        QCOMPARE(calls, 1);
        NxReadError::setHandlerCallback(nullptr, nullptr);
        NxError::setHandlerCallback(nullptr, nullptr);
    }

    void nullHandlersComeBackToo()
    {
        const std::vector<Handler> before = allHandlers();
        for (const Handler& handler : before)
            QVERIFY(handler.callback == nullptr && handler.data == nullptr);
        {
            const ConsoleRun run;
        }
        QVERIFY(allHandlers() == before);
    }

    void clearEmptiesTheView()
    {
        const ConsoleRun run;
        std::cout << "text";
        run.click(run.console.m_clearButton);
        QVERIFY(run.output().toPlainText().isEmpty());
        std::cout << "more";
        QCOMPARE(run.lines(), QStringList(QStringLiteral("more")));
    }

    void slotsStandInOrder()
    {
        const QMetaObject& meta = OrvConsole::staticMetaObject;
        QList<QByteArray> methods;
        for (int index = meta.methodOffset(); index < meta.methodCount(); ++index)
            methods << meta.method(index).methodSignature();
        QCOMPARE(
            methods, QList<QByteArray>({"clear()", "outputErrors()", "outputInfos()", "outputWarnings()", "save()"}));
        QCOMPARE(meta.superClass(), &OrvExtension::staticMetaObject);
    }
};

QTEST_MAIN(TestOrvConsole)
#include "tst_OrvConsole.moc"
