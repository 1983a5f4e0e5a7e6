#include "Patience.h"
#include "TestFiles.h"
#include "import/HelperRun.h"

#include "orvane/import/sandbox/Sanitizer.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

// Those that the sanitizer's own search for leaks needs too.
bool isTheSanitizers(const QByteArray& thing)
{
    static const QList<QByteArray> things{"fork", "fork by the old call", "spawn", "start a thread", "trace",
        "signal the parent", "map code", "turn memory into code"};
    return orvane::isSanitized() && things.contains(thing);
}

void addForbidden()
{
    QTest::addColumn<QByteArray>("thing");
    for (const char* thing : {"read beside the folder", "read through a link", "read the passwords",
             "list the root folder", "overwrite a file", "open to read and write", "append", "truncate on opening",
             "create a file", "create by its own call", "make a nameless file", "open by the newer call", "truncate",
             "delete a file", "rename a file", "link a file", "make a symbolic link", "make a folder",
             "delete a folder", "make a pipe file", "change permissions", "change the owner", "change the time",
             "change the folder", "change the root", "make a file in memory", "write to an inherited file",
             "make a socket", "make a datagram socket", "make a local socket", "make a socket pair", "connect", "fork",
             "fork by the old call", "spawn", "start a thread", "run a program", "run a program in the folder",
             "enter a namespace", "trace", "signal the parent", "map code", "turn memory into code", "raise a limit",
             "become another user"})
        QTest::newRow(thing) << QByteArray(thing);
}

} // namespace

/// What the import helper can't do, tried from inside, and that it works with every lock and without any.
class TestSandbox : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("in/below")));
        QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("in/empty")));
        for (const char* name : {"file", "in/file", "in/below/file"})
            writeFile(m_folder->filePath(QString::fromUtf8(name)), "content");
        QVERIFY(QFile::link(QStringLiteral("../file"), m_folder->filePath(QStringLiteral("in/link"))));
        const QString program = m_folder->filePath(QStringLiteral("in/program"));
        writeFile(program, "#!/bin/sh\n");
        QVERIFY(QFile::setPermissions(program, QFile::ReadOwner | QFile::ExeOwner));
    }

    void whatReadingTakesWorks_data()
    {
        QTest::addColumn<QByteArray>("thing");
        for (const char* thing : {"read in the folder", "read below the folder", "list the folder", "allocate"})
            QTest::newRow(thing) << QByteArray(thing);
    }

    void whatReadingTakesWorks()
    {
        QFETCH(QByteArray, thing);
        if (outcome("all", "nothing") == QStringLiteral("lock missing"))
            QSKIP("a lock is missing on this machine");
        QCOMPARE(outcome("all", thing), QStringLiteral("done"));
    }

    void whatIsForbiddenFails_data() { addForbidden(); }

    void whatIsForbiddenFails()
    {
        QFETCH(QByteArray, thing);
        if (outcome("all", "nothing") == QStringLiteral("lock missing"))
            QSKIP("a lock is missing on this machine");
        if (isTheSanitizers(thing))
            QSKIP("the address sanitizer needs it");
        const QString said = outcome("all", thing);
        const QStringList refusals{QStringLiteral("Operation not permitted"), QStringLiteral("Permission denied"),
            QStringLiteral("Function not implemented"), QStringLiteral("Bad file descriptor")};
        QVERIFY2(refusals.contains(said), qPrintable(said));
        QCOMPARE(readFile(m_folder->filePath(QStringLiteral("in/file"))), QByteArray("content"));
        QCOMPARE(
            QDir(m_folder->filePath(QStringLiteral("in"))).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(),
            5);
    }

    void theProbeItselfCouldDoIt_data() { addForbidden(); }

    // Otherwise the refusals would prove nothing about the sandbox.
    void theProbeItselfCouldDoIt()
    {
        QFETCH(QByteArray, thing);
        const QString said = outcome("none", thing);
        const QStringList notForUs{QStringLiteral("Operation not permitted"), QStringLiteral("Permission denied"),
            QStringLiteral("Operation not supported"), QStringLiteral("Address family not supported by protocol"),
            QStringLiteral("Function not implemented")};
        if (notForUs.contains(said))
            QSKIP("this user or machine can't do it anyway");
        if (thing.startsWith("run a program"))
            QCOMPARE(said, QString()); // another program took its place
        else
            QCOMPARE(said, QStringLiteral("done"));
    }

    void theFilterAloneRefusesToWrite_data()
    {
        QTest::addColumn<QByteArray>("thing");
        for (const char* thing : {"overwrite a file", "open to read and write", "append", "truncate on opening",
                 "create a file", "create by its own call", "make a nameless file", "truncate", "delete a file",
                 "rename a file", "make a folder", "change permissions", "connect"})
            QTest::newRow(thing) << QByteArray(thing);
    }

    void theFilterAloneRefusesToWrite()
    {
        QFETCH(QByteArray, thing);
        const QString said = outcome("calls", thing);
        if (said == QStringLiteral("lock missing"))
            QSKIP("this machine has no filters for system calls");
        QCOMPARE(said, QStringLiteral("Operation not permitted"));
    }

    void theFileRulesAloneRefuseIt_data()
    {
        QTest::addColumn<QByteArray>("thing");
        for (const char* thing : {"read beside the folder", "read through a link", "read the passwords",
                 "list the root folder", "overwrite a file", "open to read and write", "create a file",
                 "create by its own call", "delete a file", "make a folder", "run a program"})
            QTest::newRow(thing) << QByteArray(thing);
    }

    void theFileRulesAloneRefuseIt()
    {
        QFETCH(QByteArray, thing);
        const QString said = outcome("files", thing);
        if (said == QStringLiteral("lock missing"))
            QSKIP("this machine has no rules for files");
        QCOMPARE(said, QStringLiteral("Permission denied"));
    }

    void noPrivilegeCanBeGained()
    {
        // With every lock the question itself is refused.
        const QString said = outcome("files", "no new privileges");
        if (said == QStringLiteral("lock missing"))
            QSKIP("this machine has no rules for files");
        QCOMPARE(said, QStringLiteral("done"));
    }

    void aModelReadsTheFilesBesideIt()
    {
        // The colour is in the material file.
        const HelperRun run = runHelper({QStringLiteral("--read"), modelFile("crate.obj")});
        QCOMPARE(run.status, 0);
        QVERIFY(run.output.find("Material \"wood\"") != std::string::npos);
    }

    void aModelBehindALinkIsRead()
    {
        const QString link = m_folder->filePath(QStringLiteral("in/crate.glb"));
        QVERIFY(QFile::link(modelFile("crate.glb"), link));
        const HelperRun run = runHelper({QStringLiteral("--read"), link});
        QCOMPARE(run.error, QString());
        QCOMPARE(run.status, 0);
    }

    void theHelperTellsItsLocks()
    {
        const HelperRun run = runHelper({QStringLiteral("--locks")});
        QCOMPARE(run.status, 0);
        const QStringList lines = QString::fromStdString(run.output).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines[0], QStringLiteral("privileges locked"));
        QVERIFY(lines[1].startsWith(QStringLiteral("files ")));
        QVERIFY(lines[2].startsWith(QStringLiteral("system calls ")));
    }

    void theHelperWorksOnAMachineWithoutLocks()
    {
        const QString locks = runBare({helperProgram(), QStringLiteral("--locks")});
        if (locks.startsWith(QStringLiteral("this machine has")))
            QSKIP("this machine has no filters for system calls");
        QCOMPARE(locks, QStringLiteral("privileges not locked\nfiles not locked\nsystem calls not locked\n"));
        const QString model = runBare({helperProgram(), QStringLiteral("--read"), modelFile("crate.glb")});
        QCOMPARE(model, QString::fromStdString(runHelper({QStringLiteral("--read"), modelFile("crate.glb")}).output));
    }

private:
    // What the probe says, started with an open file as its descriptor 7.
    [[nodiscard]] QString outcome(const char* locks, const QByteArray& thing) const
    {
        QProcess process;
        process.start(QStringLiteral("/bin/sh"),
            {QStringLiteral("-c"), QStringLiteral("exec \"$0\" \"$@\" 7>>\"$3/inherited\""),
                QString::fromUtf8(SANDBOX_PROBE), QString::fromUtf8(locks), QString::fromUtf8(thing),
                m_folder->path()});
        if (!process.waitForFinished(testPatience) || process.exitStatus() != QProcess::NormalExit)
            return QStringLiteral("it didn't end by itself");
        return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    }

    [[nodiscard]] QString runBare(const QStringList& arguments) const
    {
        QProcess process;
        process.start(QString::fromUtf8(BARE_MACHINE), arguments);
        if (!process.waitForFinished(testPatience))
            return QStringLiteral("it didn't end");
        return QString::fromUtf8(process.readAllStandardError() + process.readAllStandardOutput());
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TestSandbox)
#include "tst_Sandbox.moc"
