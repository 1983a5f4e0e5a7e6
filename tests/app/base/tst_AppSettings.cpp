#include "TestFiles.h"
#include "app/AppScenes.h"

#include "orvane/app/base/AppSettings.h"
#include "orvane/app/files/RecentFiles.h"

#include <QTemporaryDir>
#include <QTest>

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

QTEST_GUILESS_MAIN(TestAppSettings)
#include "tst_AppSettings.moc"
