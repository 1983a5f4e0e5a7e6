#include "Patience.h"
#include "TestFiles.h"
#include "import/sandbox/BusyHelper.h"

#include "orvane/import/sandbox/Coverage.h"
#include "orvane/import/sandbox/Sanitizer.h"

#include <csignal>

namespace {

// A fan of triangles, with so many corners that its scene is more than any pipe holds.
void writeLargeModel(const QString& fileName)
{
    QByteArray model;
    for (int index = 0; index < 150000; ++index)
        model += "v 0." + QByteArray::number(index) + ' ' + QByteArray::number(index) + " 0\n";
    for (int index = 2; index < 150000; ++index)
        model += "f 1 " + QByteArray::number(index) + ' ' + QByteArray::number(index + 1) + '\n';
    writeFile(fileName, model);
}

} // namespace

/// What the helper limits itself to, looked at from outside while it works.
class TestProcessLimits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_model = m_folder.filePath(QStringLiteral("fan.obj"));
        writeLargeModel(m_model);
        QCOMPARE(QFile(m_model).size() >> 20, 5);
    }

    void aReadingHelperHasItsLimits()
    {
        BusyHelper helper;
        QVERIFY(helper.start(QStringLiteral("--packed --read ") + quotedModel()));
        QCOMPARE(
            helper.limit(QStringLiteral("Max cpu time")), QStringList({QStringLiteral("30"), QStringLiteral("31")}));
        QCOMPARE(helper.limit(QStringLiteral("Max core file size")).value(0), QStringLiteral("0"));
        QCOMPARE(helper.limit(QStringLiteral("Max open files")).value(1), QStringLiteral("64"));
        if (orvane::coverageFolder().empty()) // the counts are files
            QCOMPARE(helper.limit(QStringLiteral("Max file size")).value(1), QStringLiteral("0"));
        if (orvane::isSanitized())
            return; // it needs address space and a process of its own
        QCOMPARE(
            helper.limit(QStringLiteral("Max address space")).value(1), QString::number(std::uint64_t{4096} << 20));
        QCOMPARE(helper.limit(QStringLiteral("Max processes")).value(1), QStringLiteral("0"));
    }

    void aWritingHelperHasTimeForItsScene()
    {
        const HelperRun scene = runHelper({QStringLiteral("--read"), m_model});
        QCOMPARE(scene.status, 0);
        BusyHelper helper;
        QVERIFY(helper.start(QStringLiteral("--write glb"), scene.output));
        const qulonglong seconds = 20 + 2 * (scene.output.size() >> 20);
        QVERIFY(seconds > 20);
        QCOMPARE(helper.limit(QStringLiteral("Max cpu time")).value(0), QString::number(seconds));
    }

    void givenLimitsHold()
    {
        BusyHelper helper;
        QVERIFY(helper.start(QStringLiteral("--memory 2000 --processor-time 77 --packed --read ") + quotedModel()));
        QCOMPARE(helper.limit(QStringLiteral("Max cpu time")).value(0), QStringLiteral("77"));
        if (!orvane::isSanitized())
            QCOMPARE(helper.limit(QStringLiteral("Max address space")).value(0), QString::number(2000 << 20));
    }

    void beyondItsTimeItIsToldSo()
    {
        QByteArray model("v 0 0 0\nv 1 0 0\nv 0 1 0\n");
        for (int index = 0; index < 3000000; ++index)
            model += "f 1 2 3\n";
        const QString fileName = m_folder.filePath(QStringLiteral("slow.obj"));
        writeFile(fileName, model);
        QProcess process;
        process.start(helperProgram(),
            {QStringLiteral("--processor-time"), QStringLiteral("1"), QStringLiteral("--read"), fileName});
        QVERIFY(process.waitForFinished(testPatience));
        QCOMPARE(process.exitStatus(), QProcess::CrashExit);
        // The kernel's signal for this, which SIGKILL would hide.
        QCOMPARE(process.exitCode(), SIGXCPU);
    }

    void aHelperDiesWithItsParent()
    {
        BusyHelper helper;
        QVERIFY(helper.start(QStringLiteral("--parent $$ --packed --read ") + quotedModel()));
        QVERIFY(!helper.hasEnded());
        helper.killParent();
        QTRY_VERIFY(helper.hasEnded());
    }

    void aHelperThatIsNotToldToLivesOn()
    {
        BusyHelper helper;
        QVERIFY(helper.start(QStringLiteral("--packed --read ") + quotedModel()));
        helper.killParent();
        QTRY_VERIFY(helper.readToTheEnd());
        constexpr qint64 largestPipe = 1 << 20;
        QVERIFY(helper.outputSize() > largestPipe);
    }

    void aHelperWithoutTheParentThatItWasToldEnds()
    {
        // The first process of the system isn't it.
        const HelperRun run = runHelper({QStringLiteral("--parent"), QStringLiteral("1"), QStringLiteral("--formats")});
        QCOMPARE(run.status, 1);
        QCOMPARE(run.error, QStringLiteral("the process that started this one has ended\n"));
        QVERIFY(run.output.empty());
    }

private:
    [[nodiscard]] QString quotedModel() const { return QStringLiteral("'%1'").arg(m_model); }

    QTemporaryDir m_folder;
    QString m_model; // of 5 to 6 MiB
};

QTEST_GUILESS_MAIN(TestProcessLimits)
#include "tst_ProcessLimits.moc"
