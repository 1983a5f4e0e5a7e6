#include "Patience.h"
#include "TestFiles.h"
#include "endtoend/LiveTool.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <memory>

#include <signal.h>

using namespace Qt::StringLiterals;

/// Several windows, each a process, and files that one hands to another.
class TestWindowsSession : public QObject {
    Q_OBJECT

private:
    struct Outcome {
        int status = -1;
        QString output;
        QString errors;
    };

    void start(const QStringList& arguments = {})
    {
        m_tool = std::make_unique<LiveTool>();
        m_tool->keepStateIn(path(u"state"_s));
        m_tool->keepSettingsIn(path(u"config"_s));
        m_tool->setVariable(u"XDG_RUNTIME_DIR"_s, path(u"run"_s));
        m_tool->setVariable(u"XDG_CACHE_HOME"_s, path(u"cache"_s));
        QVERIFY(m_tool->start(arguments));
        QTRY_COMPARE(windows().size(), 1);
    }
    /// Starts another program on the same screen, in the folder of the test.
    std::unique_ptr<QProcess> startOther(const QStringList& arguments)
    {
        auto process = std::make_unique<QProcess>();
        process->setProcessEnvironment(m_tool->environment());
        process->setWorkingDirectory(m_folder->path());
        process->start(QStringLiteral(ORVANE_PROGRAM), arguments);
        return process;
    }
    /// The same for one that ends by itself.
    Outcome runOther(const QStringList& arguments)
    {
        const auto process = startOther(arguments);
        if (!process->waitForFinished(testPatience) || process->exitStatus() != QProcess::NormalExit)
            return {};
        return {process->exitCode(), QString::fromUtf8(process->readAllStandardOutput()),
            QString::fromUtf8(process->readAllStandardError())};
    }
    /// The processes that have a window.
    [[nodiscard]] QList<qint64> windows() const
    {
        QList<qint64> result;
        for (const QString& name : QDir(path(u"run/orvane"_s)).entryList({u"*-*"_s}, QDir::System))
            result.append(name.section(u'-', -1).toLongLong());
        return result;
    }
    /// The one that isn't the tool's; 0 if there is none.
    [[nodiscard]] qint64 otherWindow() const
    {
        for (const qint64 window : windows()) {
            if (window != m_tool->processId())
                return window;
        }
        return 0;
    }
    /// Ends a window that is no child of the test.
    void end(qint64 window)
    {
        QVERIFY(window > 0);
        QCOMPARE(::kill(static_cast<pid_t>(window), SIGKILL), 0);
        QTRY_VERIFY(::kill(static_cast<pid_t>(window), 0) != 0);
    }
    [[nodiscard]] QString path(const QString& name) const { return m_folder->filePath(name); }
    [[nodiscard]] QString title() { return m_tool->property(u"mainWindow"_s, u"windowTitle"_s); }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkdir(u"run"_s));
        QVERIFY(QFile::setPermissions(
            path(u"run"_s), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner));
        writeFile(path(u"one.mrd"_s), "#mrd 1.0\nGroup \"first\" {\n}\n");
        writeFile(path(u"two.mrd"_s), "#mrd 1.0\nGroup \"second\" {\n  Group \"inner\" {\n  }\n}\n");
    }
    void cleanup() { m_tool.reset(); }

    void aFileIsHandedToTheRunningWindow()
    {
        start({path(u"one.mrd"_s)});
        const Outcome outcome = runOther({u"--reuse"_s, u"two.mrd"_s, u"--select"_s, u"/second/inner"_s});
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.status, 0);
        QVERIFY2(outcome.output.contains(u"two.mrd: handed to the running window"_s), qPrintable(outcome.output));
        QVERIFY(!m_tool->item(u"sceneTree"_s, u"inner"_s).isEmpty());
        QTRY_VERIFY(title().startsWith(u"two.mrd"_s));
        QCOMPARE(runOther({u"--reuse"_s}).status, 0);
        QCOMPARE(m_tool->quit(), 0);
        QTRY_VERIFY(windows().isEmpty());
    }

    void unsavedChangesAreAskedAbout()
    {
        start({path(u"one.mrd"_s)});
        m_tool->click(m_tool->item(u"sceneTree"_s, u"first"_s).center());
        m_tool->key(u"ctrl+d"_s);
        QVERIFY(m_tool->becomes(u"mainWindow"_s, u"windowModified"_s));
        QCOMPARE(runOther({u"--reuse"_s, u"two.mrd"_s}).status, 0);
        QVERIFY(!m_tool->widget(u"saveQuestion"_s).isEmpty());
        QVERIFY(m_tool->becomes(u"saveQuestion"_s, u"isActiveWindow"_s)); // else the key goes elsewhere
        m_tool->key(u"Escape"_s);
        QTRY_VERIFY(!m_tool->isShown(u"saveQuestion"_s));
        QVERIFY(title().startsWith(u"one.mrd"_s));
    }

    void theSettingLetsFilesComeToTheRunningWindow()
    {
        QVERIFY(QDir(m_folder->path()).mkpath(u"config/orvane"_s));
        writeFile(path(u"config/orvane/orvane.ini"_s), "[files]\noneWindow=true\n");
        start();
        const Outcome outcome = runOther({u"file://"_s + path(u"two.mrd"_s)});
        QCOMPARE(outcome.errors, QString());
        QCOMPARE(outcome.status, 0);
        QTRY_VERIFY(title().startsWith(u"two.mrd"_s));
        // The option counts more.
        const auto other = startOther({u"--new-window"_s, u"one.mrd"_s});
        QTRY_COMPARE(windows().size(), 2);
        QVERIFY(title().startsWith(u"two.mrd"_s));
        other->kill();
        QVERIFY(other->waitForFinished(testPatience));
    }

    void withoutTheSettingEachFileHasItsWindow()
    {
        start();
        const auto other = startOther({u"two.mrd"_s});
        QTRY_COMPARE(windows().size(), 2);
        QVERIFY(title() == u"Orvane"_s);
        other->kill();
        QVERIFY(other->waitForFinished(testPatience));
    }

    void aNewWindowIsAProcessOfItsOwn()
    {
        start({path(u"one.mrd"_s)});
        QVERIFY(m_tool->activate());
        m_tool->key(u"ctrl+alt+n"_s);
        QTRY_COMPARE(windows().size(), 2);
        const qint64 other = otherWindow();
        // One that crashes leaves the other alone, and its socket isn't in the way.
        m_tool->kill();
        QVERIFY(::kill(static_cast<pid_t>(other), 0) == 0);
        QCOMPARE(runOther({u"--reuse"_s, u"two.mrd"_s}).status, 0);
        end(other);
    }

    void aWindowThatHangsIsntWaitedFor()
    {
        start({path(u"one.mrd"_s)});
        QCOMPARE(::kill(static_cast<pid_t>(m_tool->processId()), SIGSTOP), 0);
        const auto other = startOther({u"--reuse"_s, u"two.mrd"_s});
        QTRY_COMPARE(windows().size(), 2);
        QVERIFY(QString::fromUtf8(other->readAllStandardError()).contains(u"doesn't answer"_s));
        QCOMPARE(::kill(static_cast<pid_t>(m_tool->processId()), SIGCONT), 0);
        // What was given up isn't opened here, too.
        m_tool->click(m_tool->item(u"sceneTree"_s, u"first"_s).center());
        QVERIFY(title().startsWith(u"one.mrd"_s));
        other->kill();
        QVERIFY(other->waitForFinished(testPatience));
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<LiveTool> m_tool;
};

QTEST_GUILESS_MAIN(TestWindowsSession)

#include "tst_WindowsSession.moc"
