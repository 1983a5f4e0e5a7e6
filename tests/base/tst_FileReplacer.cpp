#include "base/FileSizeLimit.h"
#include "base/FolderCase.h"

#include <QTest>

#include <unistd.h>

using meridane::FileReplacer;

class TestFileReplacer : public FolderCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { makeFolder(); }

    void replacesAFileWholeAndLeavesNothingElse()
    {
        QVERIFY(!replace(path("file"), "the old and longer content"));
        QVERIFY(!replace(path("file"), "new"));
        QCOMPARE(contentOf("file"), QByteArray("new"));
        QCOMPARE(entries(), QStringList{QStringLiteral("file")});
    }

    void writesInManyPartsAndOfAnySize()
    {
        FileReplacer replacer;
        QVERIFY(!replacer.open(path("file")));
        const std::string part(3000000, 'y');
        for (int i = 0; i < 3; ++i)
            QVERIFY(!replacer.write(part.data(), part.size()));
        QVERIFY(!replacer.write(nullptr, 0));
        QVERIFY(!replacer.commit());
        QCOMPARE(contentOf("file").size(), 9000000);
    }

    void theOldFileStaysUntilTheNewOneIsCommitted()
    {
        QVERIFY(!replace(path("file"), "old"));
        {
            FileReplacer replacer;
            QVERIFY(!replacer.open(path("file")));
            QVERIFY(!replacer.write("new", 3));
            QCOMPARE(contentOf("file"), QByteArray("old"));
        }
        QCOMPARE(contentOf("file"), QByteArray("old"));
        QCOMPARE(entries(), QStringList{QStringLiteral("file")});
    }

    void otherHardLinksKeepTheOldContent()
    {
        QVERIFY(!replace(path("file"), "old"));
        QCOMPARE(::link(path("file").c_str(), path("link").c_str()), 0);
        QVERIFY(!replace(path("file"), "new"));
        QCOMPARE(contentOf("file"), QByteArray("new"));
        QCOMPARE(contentOf("link"), QByteArray("old"));
    }

    void symbolicLinksAreFollowed_data()
    {
        QTest::addColumn<QByteArray>("target");
        QTest::newRow("beside") << QByteArray("file");
        QTest::newRow("in another folder") << QByteArray("folder/file");
        QTest::newRow("to a file that isn't there yet") << QByteArray("folder/new");
    }

    void symbolicLinksAreFollowed()
    {
        QFETCH(QByteArray, target);
        makeOddities();
        QVERIFY(!replace(path("folder/file"), "old"));
        QCOMPARE(::symlink(target.constData(), path("second").c_str()), 0);
        QCOMPARE(::symlink(path("second").c_str(), path("first").c_str()), 0);
        QVERIFY(!replace(path("first"), "new"));
        QVERIFY(QFileInfo(QString::fromStdString(path("first"))).isSymLink());
        QVERIFY(QFileInfo(QString::fromStdString(path("second"))).isSymLink());
        QCOMPARE(contentOf(target.constData()), QByteArray("new"));
        QVERIFY(!QFileInfo(QString::fromStdString(path(target.constData()))).isSymLink());
    }

    void whatCannotBeWrittenIsReportedAndLeftAlone_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("reason");
        QTest::newRow("folder") << QByteArray("folder") << QByteArray("is a directory");
        QTest::newRow("in a missing folder") << QByteArray("missing/x.mrd") << QByteArray("No such file or directory");
        QTest::newRow("below a file") << QByteArray("file/x.mrd") << QByteArray("Not a directory");
        QTest::newRow("pipe") << QByteArray("pipe") << QByteArray("isn't a regular file");
        QTest::newRow("circle of links") << QByteArray("circle") << QByteArray("Too many levels of symbolic links");
        QTest::newRow("long name") << QByteArray(300, 'n') << QByteArray("File name too long");
    }

    void whatCannotBeWrittenIsReportedAndLeftAlone()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, reason);
        makeOddities();
        const QStringList before = entries();
        const std::string file = path(name.constData());
        QCOMPARE(replace(file, "x").value_or("no message"), file + ": " + reason.toStdString());
        QCOMPARE(entries(), before);
    }

    void aFullDiskIsReported()
    {
        FileReplacer replacer;
        QVERIFY(!replacer.open(path("file")));
        const FileSizeLimit limit(100000);
        const std::string bytes(200000, 'x');
        const auto message = replacer.write(bytes.data(), bytes.size());
        QCOMPARE(message.value_or("no message"), path("file") + ": File too large");
    }
};

QTEST_APPLESS_MAIN(TestFileReplacer)
#include "tst_FileReplacer.moc"
