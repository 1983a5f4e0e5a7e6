#include "OrvDefaults.h"
#include "Patience.h"
#include "plugin/ErrorThreads.h"
#include "plugin/SliderDriver.h"
#include "plugin/ToolHarness.h"

#include "orvane/extender/OrvPluginsManager.h"
#include "orvane/extender/OrvProfile.h"

#include <QComboBox>
#include <QDockWidget>
#include <QLineEdit>
#include <QTableWidget>
#include <QTextDocument>
#include <QTextEdit>

#include <iostream>
#include <memory>

namespace {

constexpr qsizetype extensionCount = 48;

/// The host around the whole plug-in, with two profiles that run everything and one without the console.
class SwitchingTool : public ToolHarness {
public:
    SwitchingTool()
    {
        if (const auto error = manager.addPlugin(&plugin))
            qFatal("%s", qUtf8Printable(*error));
        const OrvProfile::Entry everything{QStringLiteral("*"), true, {QStringLiteral("*")}};
        const OrvProfile::Entry noConsole{QStringLiteral("Console"), false, {}};
        add(QStringLiteral("A"), {everything});
        add(QStringLiteral("B"), {everything});
        add(QStringLiteral("Quiet"), {everything, noConsole});
        use(QStringLiteral("A"));
        shell.window.resize(1000, 700);
        shell.window.show();
    }
    ~SwitchingTool() { manager.unloadPlugins(); }

    void use(const QString& profile) { manager.setActiveProfile(manager.findProfile(profile)); }

    /// The frame that the dock of field editors shows.
    [[nodiscard]] QWidget* frame() const
    {
        const auto docks = shell.window.findChildren<QDockWidget*>();
        for (const QDockWidget* const dock : docks) {
            if (dock->windowTitle() == QLatin1String("Field Editor"))
                return dock->widget();
        }
        return nullptr;
    }
    [[nodiscard]] QTextEdit* console() const
    {
        return shell.window.findChild<QTextEdit*>(QStringLiteral("m_consoleOutput"));
    }

    OrvPluginsManager manager;
    OrvDefaults plugin;

private:
    void add(const QString& name, const QList<OrvProfile::Entry>& entries)
    {
        if (const auto error = manager.addProfile(std::make_unique<OrvProfile>(name, entries)))
            qFatal("%s", qUtf8Printable(*error));
    }
};

} // namespace

class TestProfileSwitch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QVERIFY(ToolHarness::noWidgetIsLeft()); }

    void allExtensionsLiveThroughManySwitches()
    {
        SwitchingTool tool;
        QCOMPARE(tool.manager.getExtensions().size(), extensionCount);
        const QStringList profiles{QStringLiteral("B"), QStringLiteral("Quiet"), QStringLiteral("A")};
        for (NxField* const field : tool.node->getFields()) {
            tool.services.selectNode(tool.node.get());
            tool.services.selectField(field);
            for (const QString& profile : profiles) {
                tool.use(profile);
                ToolHarness::pump();
                QVERIFY(tool.frame() != nullptr);
            }
        }
        QCOMPARE(tool.services.pushed, 0);
    }

    void wholePluginLoadsAndUnloadsSeveralTimes()
    {
        std::streambuf* const output = std::cout.rdbuf();
        for (int round = 0; round < 3; ++round) {
            SwitchingTool tool;
            tool.services.selectField(&tool.node->sfColor);
            tool.use(QStringLiteral("B"));
            QVERIFY(tool.frame() != nullptr);
        }
        QCOMPARE(std::cout.rdbuf(), output);
    }

    void selectionIsShownAgain()
    {
        SwitchingTool tool;
        tool.services.selectNode(tool.node.get());
        tool.services.selectField(&tool.node->sfFloat);
        QWidget* const frame = tool.frame();
        QVERIFY(frame != nullptr);
        tool.use(QStringLiteral("B"));
        QCOMPARE(tool.frame(), frame);
        QVERIFY(frame->isVisible());
    }

    void typedTextReachesItsField()
    {
        SwitchingTool tool;
        tool.services.selectNode(tool.node.get());
        tool.services.selectField(&tool.node->sfString);
        auto* const line = tool.frame()->findChild<QLineEdit*>();
        QVERIFY(QTest::qWaitForWindowActive(&tool.shell.window, testPatience));
        line->setFocus();
        line->clear();
        QTest::keyClicks(line, QStringLiteral("typed"));
        tool.use(QStringLiteral("B"));
        QCOMPARE(ToolHarness::textOf(tool.node->sfString), QStringLiteral("\"typed\""));
    }

    void dragUnderWayKeepsWhatItWrote()
    {
        SwitchingTool tool;
        tool.node->sfFloat.setValue(0.0F);
        tool.services.selectNode(tool.node.get());
        tool.services.selectField(&tool.node->sfFloat);
        ToolHarness::pump();
        SliderDriver driver(*tool.frame());
        driver.press();
        driver.dragTo(driver.slider->maximum());
        const float dragged = tool.node->sfFloat.getValue();
        QVERIFY(dragged > 0.0F);
        tool.use(QStringLiteral("B"));
        driver.release();
        ToolHarness::pump();
        QCOMPARE(tool.node->sfFloat.getValue(), dragged);
        QVERIFY(tool.services.canUndo());
    }

    void textInAnOpenCellReachesItsRow()
    {
        SwitchingTool tool;
        tool.node->mfString.deleteValues(0, tool.node->mfString.getNum());
        tool.node->mfString.insertSpace(0, 1);
        tool.node->mfString.set1Value(0, VbString("old"));
        tool.services.selectNode(tool.node.get());
        tool.services.selectField(&tool.node->mfString);
        ToolHarness::pump();
        QVERIFY(QTest::qWaitForWindowActive(&tool.shell.window, testPatience));
        auto* const table = tool.frame()->findChild<QTableWidget*>();
        const QPoint cell = table->visualRect(table->model()->index(0, 0)).center();
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, cell);
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, cell);
        auto* const line = table->findChild<QLineEdit*>(QStringLiteral("qt_lineeditor"));
        QVERIFY(line != nullptr);
        line->selectAll();
        QTest::keyClicks(line, QStringLiteral("new"));
        tool.use(QStringLiteral("B"));
        ToolHarness::pump();
        QCOMPARE(ToolHarness::textOf(tool.node->mfString), QStringLiteral("[\"new\"]"));
    }

    void streamsComeBackWithoutTheConsole()
    {
        SwitchingTool tool;
        std::streambuf* const captured = std::cout.rdbuf();
        std::cout << "seen";
        QTextEdit* const console = tool.console();
        QCOMPARE(console->toPlainText(), QStringLiteral("seen"));
        tool.use(QStringLiteral("Quiet"));
        QVERIFY(std::cout.rdbuf() != captured);
        QVERIFY(tool.console() == nullptr);
        tool.use(QStringLiteral("A"));
        std::cout << "again";
        QCOMPARE(console->toPlainText(), QStringLiteral("seen\nagain"));
    }

    void errorsOfThreadsArriveWhileItSwitches()
    {
        SwitchingTool tool;
        tool.services.selectNode(tool.node.get());
        tool.services.selectField(&tool.node->sfFloat);
        ErrorThreads threads(8, 500);
        int switches = 0;
        while (threads.areRunning() || switches < 6) {
            tool.use(switches % 2 == 0 ? QStringLiteral("Quiet") : QStringLiteral("A"));
            QCoreApplication::processEvents();
            ++switches;
        }
        tool.use(QStringLiteral("A"));
        QVERIFY(tool.console() != nullptr);
        const QTextDocument& shown = *tool.console()->document();
        QTRY_COMPARE(shown.blockCount(), threads.total());
        QCOMPARE(threads.firstOutOfOrder(shown.toPlainText().split(QLatin1Char('\n'))), QString());
    }

    void choiceInTheToolBarSwitches()
    {
        SwitchingTool tool;
        auto* const box = tool.shell.window.findChild<QToolBar*>()->findChild<QComboBox*>();
        QCOMPARE(box->currentText(), QStringLiteral("A"));
        QTest::keyClick(box, Qt::Key_End);
        QCOMPARE(tool.manager.getActiveProfile(), tool.manager.findProfile(QStringLiteral("Quiet")));
        QVERIFY(tool.console() == nullptr);
        QCOMPARE(box->count(), 3); // the change rebuilt the list
        QCOMPARE(box->currentText(), QStringLiteral("Quiet"));
    }
};

QTEST_MAIN(TestProfileSwitch)
#include "tst_ProfileSwitch.moc"
