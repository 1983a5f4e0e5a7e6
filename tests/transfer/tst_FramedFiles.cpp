#include "orvane/transfer/FramedFiles.h"

#include <QTest>

using orvane::NamedFile;
using orvane::unpackFramedFiles;

class TestFramedFiles : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void filesComeOutAsTheyWentIn()
    {
        const std::vector<NamedFile> files{
            {"träger box.obj", "end\nfile 3 x\n"}, {"box.bin", std::string("\0\1", 2)}, {"e", ""}};
        std::string bytes = orvane::framedFilesStart();
        for (const NamedFile& file : files)
            bytes += orvane::framedFileHeader(file.name, file.bytes.size()) + file.bytes;
        bytes += orvane::framedFilesEnd();

        const auto result = unpackFramedFiles(bytes);
        QVERIFY(result);
        QCOMPARE(result->size(), files.size());
        for (std::size_t index = 0; index < files.size(); ++index) {
            QCOMPARE((*result)[index].name, files[index].name);
            QCOMPARE((*result)[index].bytes, files[index].bytes);
        }
    }

    void bytesThatAreNoFramedFilesAreRefused_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray start("orvane-files 1\n");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("garbage") << QByteArray("garbage\n");
        QTest::newRow("another version") << QByteArray("orvane-files 2\nfile 1 a\nxend\n");
        QTest::newRow("no file") << start + "end\n";
        QTest::newRow("no end") << start + "file 1 a\nx";
        QTest::newRow("bytes behind the end") << start + "file 1 a\nxend\nx";
        QTest::newRow("bytes cut off") << start + "file 5 a\nxend";
        QTest::newRow("size that wraps around") << start + "file 18446744073709551615 a\nxend\n";
        QTest::newRow("size beyond all numbers") << start + "file 99999999999999999999 a\nxend\n";
        QTest::newRow("negative size") << start + "file -1 a\nxend\n";
        QTest::newRow("no size") << start + "file a\nxend\n";
        QTest::newRow("no name") << start + "file 1\nxend\n";
        QTest::newRow("empty name") << start + "file 1 \nxend\n";
        QTest::newRow("line without an end") << start + "file 1 a";
        QTest::newRow("another folder") << start + "file 1 ../a\nxend\n";
        QTest::newRow("absolute path") << start + "file 1 /etc/a\nxend\n";
        QTest::newRow("hidden file") << start + "file 1 .a\nxend\n";
        QTest::newRow("same name twice") << start + "file 1 a\nxfile 1 a\nyend\n";
    }

    void bytesThatAreNoFramedFilesAreRefused()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(!unpackFramedFiles(bytes.toStdString()));
    }
};

QTEST_GUILESS_MAIN(TestFramedFiles)
#include "tst_FramedFiles.moc"
