#include "meridane/scene/file/NxReadFailure.h"

#include <QTest>

class TestNxReadFailure : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void namesThePartsOfThePlaceThatAreKnown_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("column");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("all") << QByteArray("a.mrd") << 3 << 14 << QByteArray("a.mrd:3:14: no");
        QTest::newRow("no column") << QByteArray("a.mrd") << 3 << 0 << QByteArray("a.mrd:3: no");
        QTest::newRow("file alone") << QByteArray("a.mrd") << 0 << 0 << QByteArray("a.mrd: no");
        QTest::newRow("no file") << QByteArray("") << 3 << 14 << QByteArray("3:14: no");
        QTest::newRow("nothing") << QByteArray("") << 0 << 0 << QByteArray("no");
    }

    void namesThePartsOfThePlaceThatAreKnown()
    {
        QFETCH(QByteArray, file);
        QFETCH(int, line);
        QFETCH(int, column);
        QFETCH(QByteArray, text);
        QCOMPARE(QByteArray::fromStdString(NxReadFailure{file.toStdString(), line, column, "no"}.text()), text);
    }
};

QTEST_APPLESS_MAIN(TestNxReadFailure)
#include "tst_NxReadFailure.moc"
