#include "Patience.h"
#include "TestFiles.h"
#include "app/AppScenes.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/files/RecentFiles.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <csignal>

#include <sys/resource.h>

namespace {

constexpr int writtenAtOnce = 20;

QString keyOf(int program, int value)
{
    return QStringLiteral("program%1/value%2").arg(program).arg(value);
}

/// What another program does at the same time.
int writeValues(const QString& fileName, int program)
{
    AppSettings settings(AppSettings::Mode::File, fileName);
    for (int value = 0; value < writtenAtOnce; ++value) {
        settings.setValue(keyOf(program, value), value);
        settings.sync();
    }
    return settings.problem().isEmpty() ? 0 : 1;
}

} // namespace

class TestAppSettings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(m_folder->isValid());
        m_fileName = m_folder->filePath(QStringLiteral("tool/orvane.ini"));
    }

    void keepsValuesInTheFile()
    {
        {
            AppSettings settings(AppSettings::Mode::File, m_fileName);
            QCOMPARE(settings.problem(), QString());
            settings.setValue(QStringLiteral("a/b"), 7);
        }
        const AppSettings settings(AppSettings::Mode::File, m_fileName);
        QCOMPARE(settings.value(QStringLiteral("a/b")).toInt(), 7);
    }

    void neitherReadsNorWritesWithoutSettings()
    {
        QVERIFY(QDir().mkpath(m_folder->filePath(QStringLiteral("tool"))));
        writeFile(m_fileName, "[a]\nb=7\n");
        AppSettings settings(AppSettings::Mode::None, m_fileName);
        QVERIFY(!settings.value(QStringLiteral("a/b")).isValid());
        settings.setValue(QStringLiteral("a/b"), 8);
        settings.sync();
        QCOMPARE(settings.value(QStringLiteral("a/b")).toInt(), 8);
        QCOMPARE(readFile(m_fileName), QByteArray("[a]\nb=7\n"));
    }

    void leavesABrokenFileAsItIs_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("no assignment") << QByteArray("this is no settings file\n");
        QTest::newRow("open section") << QByteArray("[window\nstate=1\n");
        QTest::newRow("half a line") << QByteArray("[window]\nstate=1\nwid");
        QTest::newRow("half a value") << QByteArray("[settings]\nversion=2\n[window]\nwidth=10");
        QTest::newRow("nulls") << QByteArray(4096, '\0');
        QTest::newRow("later version") << QByteArray("[settings]\nversion=3\n");
    }

    void leavesABrokenFileAsItIs()
    {
        QFETCH(const QByteArray, bytes);
        QVERIFY(QDir().mkpath(m_folder->filePath(QStringLiteral("tool"))));
        writeFile(m_fileName, bytes);
        {
            AppSettings settings(AppSettings::Mode::File, m_fileName);
            QVERIFY(settings.problem().startsWith(m_fileName));
            settings.setValue(QStringLiteral("a/b"), 7);
            settings.sync();
            QCOMPARE(settings.value(QStringLiteral("a/b")).toInt(), 7);
        }
        QCOMPARE(readFile(m_fileName), bytes);
    }

    void usesWhatIsReadable()
    {
        QVERIFY(QDir().mkpath(m_folder->filePath(QStringLiteral("tool"))));
        writeFile(m_fileName, "[settings]\nversion=3\n[a]\nb=7\n");
        AppSettings settings(AppSettings::Mode::File, m_fileName);
        QCOMPARE(settings.value(QStringLiteral("a/b")).toInt(), 7);
        QVERIFY(settings.problem().contains(QStringLiteral("later version")));
        const QSignalSpy failed(&settings, &AppSettings::failed);
        settings.setValue(QStringLiteral("a/b"), 8);
        settings.sync();
        QCOMPARE(failed.size(), 0); // it was known from the start
    }

    void convertsAnOlderVersion()
    {
        QVERIFY(QDir().mkpath(m_folder->filePath(QStringLiteral("tool"))));
        writeFile(m_fileName, "[view]\nhandles=view.handlesTurn\nhandleAxes=view.axesOwn\nbackground=2\ngrid=false\n");
        {
            const AppSettings settings(AppSettings::Mode::File, m_fileName);
            QCOMPARE(settings.problem(), QString());
            QCOMPARE(settings.value(QStringLiteral("view/handles")).toString(), QStringLiteral("turn"));
            QCOMPARE(settings.value(QStringLiteral("view/handleAxes")).toString(), QStringLiteral("own"));
            QCOMPARE(settings.value(QStringLiteral("view/background")).toString(), QStringLiteral("dark"));
        }
        QVERIFY(readFile(m_fileName).contains("version=2"));
        QVERIFY(readFile(m_fileName).contains("grid=false"));
        QVERIFY(readFile(m_fileName).contains("handles=turn"));
    }

    void keepsWhatAnotherProgramSets()
    {
        AppSettings one(AppSettings::Mode::File, m_fileName);
        AppSettings other(AppSettings::Mode::File, m_fileName);
        one.setValue(QStringLiteral("a/one"), 1);
        other.setValue(QStringLiteral("a/other"), 2);
        one.sync();
        const QSignalSpy changed(&other, &AppSettings::changed);
        other.sync();
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed[0][0].toString(), QStringLiteral("a/one"));
        one.sync();
        for (const AppSettings* const settings : {&one, &other}) {
            QCOMPARE(settings->value(QStringLiteral("a/one")).toInt(), 1);
            QCOMPARE(settings->value(QStringLiteral("a/other")).toInt(), 2);
        }
        one.remove(QStringLiteral("a/one"));
        one.sync();
        other.setValue(QStringLiteral("a/third"), 3);
        other.sync();
        QVERIFY(!other.contains(QStringLiteral("a/one")));
        const AppSettings read(AppSettings::Mode::File, m_fileName);
        QVERIFY(!read.contains(QStringLiteral("a/one")));
        QCOMPARE(read.value(QStringLiteral("a/other")).toInt(), 2);
    }

    void leavesAFileThatBreaksWhileItRuns()
    {
        AppSettings settings(AppSettings::Mode::File, m_fileName);
        settings.setValue(QStringLiteral("a/b"), 1);
        settings.sync();
        const QByteArray later = "[settings]\nversion=3\n[a]\nb=9\n";
        writeFile(m_fileName, later);
        const QSignalSpy failed(&settings, &AppSettings::failed);
        settings.setValue(QStringLiteral("a/b"), 2);
        settings.sync();
        settings.setValue(QStringLiteral("a/b"), 3);
        settings.sync();
        QCOMPARE(failed.size(), 1);
        QCOMPARE(readFile(m_fileName), later);
    }

    void savesLaterWhatCannotBeSaved()
    {
        const QString folder = m_folder->filePath(QStringLiteral("tool"));
        // A file in place of the folder: nobody can write there, not even root.
        writeFile(folder, "");
        AppSettings settings(AppSettings::Mode::File, m_fileName);
        QCOMPARE(settings.problem(), QString());
        const QSignalSpy failed(&settings, &AppSettings::failed);
        settings.setValue(QStringLiteral("a/b"), 1);
        settings.sync();
        settings.setValue(QStringLiteral("a/c"), 2);
        settings.sync();
        QCOMPARE(failed.size(), 1);
        QVERIFY(settings.problem().startsWith(m_fileName));
        QCOMPARE(settings.value(QStringLiteral("a/b")).toInt(), 1);
        QVERIFY(QFile::remove(folder));
        settings.sync();
        QCOMPARE(settings.problem(), QString());
        const AppSettings read(AppSettings::Mode::File, m_fileName);
        QCOMPARE(read.value(QStringLiteral("a/b")).toInt(), 1);
        QCOMPARE(read.value(QStringLiteral("a/c")).toInt(), 2);
    }

    void keepsTheFileWhenTheDiskIsFull()
    {
        constexpr int large = 8192;
        {
            AppSettings settings(AppSettings::Mode::File, m_fileName);
            settings.setValue(QStringLiteral("a/text"), QString(large, u'x'));
        }
        const QByteArray before = readFile(m_fileName);
        QVERIFY(before.size() > large);
        // A file that can't grow beyond the limit is what a full disk is to a program.
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit former{};
        QCOMPARE(getrlimit(RLIMIT_FSIZE, &former), 0);
        rlimit small = former;
        small.rlim_cur = large / 2;
        AppSettings settings(AppSettings::Mode::File, m_fileName);
        const QSignalSpy failed(&settings, &AppSettings::failed);
        settings.setValue(QStringLiteral("a/b"), 1);
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &small), 0);
        settings.sync();
        QCOMPARE(setrlimit(RLIMIT_FSIZE, &former), 0);
        QCOMPARE(failed.size(), 1);
        QCOMPARE(readFile(m_fileName), before);
        settings.sync();
        QCOMPARE(settings.problem(), QString());
        QVERIFY(readFile(m_fileName).contains("b=1"));
    }

    void programsAtOnceLoseNothing()
    {
        std::array<QProcess, 3> programs;
        for (std::size_t i = 0; i < programs.size(); ++i)
            programs[i].start(
                QCoreApplication::applicationFilePath(), {QStringLiteral("--write"), m_fileName, QString::number(i)});
        for (QProcess& program : programs) {
            QVERIFY(program.waitForFinished(testPatience));
            QCOMPARE(program.exitCode(), 0);
        }
        const AppSettings settings(AppSettings::Mode::File, m_fileName);
        QCOMPARE(settings.problem(), QString());
        for (std::size_t i = 0; i < programs.size(); ++i) {
            for (int value = 0; value < writtenAtOnce; ++value)
                QCOMPARE(settings.value(keyOf(static_cast<int>(i), value)).toInt(), value);
        }
    }

    void reportsAFolderInPlaceOfTheFile()
    {
        QVERIFY(QDir().mkpath(m_fileName));
        const AppSettings settings(AppSettings::Mode::File, m_fileName);
        QVERIFY(settings.problem().startsWith(m_fileName));
    }

    void listsTheLatestFileFirstAndOnce()
    {
        AppSettings settings(AppSettings::Mode::None, m_fileName);
        RecentFiles recent(settings);
        for (const char* name : {"/a.mrd", "/b.mrd", "/a.mrd"})
            recent.add(QLatin1String(name));
        QCOMPARE(recent.fileNames(), QStringList({QStringLiteral("/a.mrd"), QStringLiteral("/b.mrd")}));
        recent.remove(QStringLiteral("/a.mrd"));
        QCOMPARE(recent.fileNames(), QStringList({QStringLiteral("/b.mrd")}));
        for (int i = 0; i < 2 * RecentFiles::capacity; ++i)
            recent.add(QStringLiteral("/%1.mrd").arg(i));
        QCOMPARE(recent.fileNames().size(), RecentFiles::capacity);
        recent.clear();
        QVERIFY(recent.fileNames().isEmpty());
    }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_fileName;
};

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 4 && arguments[1] == QStringLiteral("--write"))
        return writeValues(arguments[2], arguments[3].toInt());
    TestAppSettings test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_AppSettings.moc"
