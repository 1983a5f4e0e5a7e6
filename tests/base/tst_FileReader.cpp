#include "base/FolderCase.h"
#include "base/OrdinaryUser.h"

#include <QTest>

#include <sys/stat.h>

using meridane::FileReader;

class TestFileReader : public FolderCase {
    Q_OBJECT

private Q_SLOTS:
    void init() { makeFolder(); }

    void readsAWholeFile()
    {
        const std::string bytes = std::string("one\0two\n", 8) + std::string(5000000, 'x');
        QVERIFY(!replace(path("file"), bytes));
        std::string read = "what was there before";
        QVERIFY(!meridane::readFile(path("file"), read));
        QVERIFY(read == bytes);
    }

    void readsAnEmptyFile()
    {
        QVERIFY(!replace(path("file"), {}));
        std::string read = "x";
        QVERIFY(!meridane::readFile(path("file"), read));
        QVERIFY(read.empty());
    }

    void readsInSlices()
    {
        QVERIFY(!replace(path("file"), "abcdefg"));
        FileReader reader;
        QVERIFY(!reader.open(path("file")));
        QCOMPARE(reader.size(), std::size_t{7});
        std::string bytes = ">";
        bool atEnd = true;
        QVERIFY(!reader.read(bytes, 4, atEnd));
        QCOMPARE(bytes, std::string(">abcd"));
        QVERIFY(!atEnd);
        QVERIFY(!reader.read(bytes, 4, atEnd));
        QCOMPARE(bytes, std::string(">abcdefg"));
        QVERIFY(atEnd);
    }

    void aReaderCanOpenOneFileAfterTheOther()
    {
        QVERIFY(!replace(path("one"), "1"));
        QVERIFY(!replace(path("two"), "22"));
        FileReader reader;
        QVERIFY(!reader.open(path("one")));
        QVERIFY(!reader.open(path("two")));
        QCOMPARE(reader.size(), std::size_t{2});
    }

    void whatCannotBeReadIsReportedWithItsPath_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("reason");
        QTest::newRow("missing") << QByteArray("missing.mrd") << QByteArray("No such file or directory");
        QTest::newRow("in a missing folder") << QByteArray("missing/x.mrd") << QByteArray("No such file or directory");
        QTest::newRow("folder") << QByteArray("folder") << QByteArray("is a directory");
        QTest::newRow("below a file") << QByteArray("file/x.mrd") << QByteArray("Not a directory");
        QTest::newRow("link to nothing") << QByteArray("dangling") << QByteArray("No such file or directory");
        QTest::newRow("pipe") << QByteArray("pipe") << QByteArray("isn't a regular file");
        QTest::newRow("circle of links") << QByteArray("circle") << QByteArray("Too many levels of symbolic links");
        QTest::newRow("long name") << QByteArray(300, 'n') << QByteArray("File name too long");
    }

    void whatCannotBeReadIsReportedWithItsPath()
    {
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, reason);
        makeOddities();
        const std::string file = path(name.constData());
        std::string bytes;
        QCOMPARE(meridane::readFile(file, bytes).value_or("no message"), file + ": " + reason.toStdString());
    }

    void anEmptyNameIsReported()
    {
        std::string bytes;
        QCOMPARE(meridane::readFile({}, bytes).value_or("no message"),
            std::string("no file name: No such file or directory"));
        QVERIFY(replace({}, "x").has_value());
    }

    void aFileWithoutReadPermissionIsReported()
    {
        QVERIFY(!replace(path("secret"), "x"));
        QCOMPARE(::chmod(path("secret").c_str(), 0), 0);
        const OrdinaryUser user;
        QVERIFY(user.isReady());
        std::string bytes;
        QCOMPARE(
            meridane::readFile(path("secret"), bytes).value_or("no message"), path("secret") + ": Permission denied");
    }
};

QTEST_APPLESS_MAIN(TestFileReader)
#include "tst_FileReader.moc"
