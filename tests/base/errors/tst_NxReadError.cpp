#include "meridane/base/errors/NxReadError.h"

#include <QTest>

class TestNxReadError : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theTextLeavesOutWhatIsUnknown_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<int>("line");
        QTest::addColumn<int>("column");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("all known") << QByteArray("a.mrd") << 3 << 14 << QByteArray("a.mrd:3:14: bad");
        QTest::newRow("no column") << QByteArray("a.mrd") << 3 << 0 << QByteArray("a.mrd:3: bad");
        QTest::newRow("no line") << QByteArray("a.mrd") << 0 << 0 << QByteArray("a.mrd: bad");
        QTest::newRow("a column without a line") << QByteArray("a.mrd") << 0 << 5 << QByteArray("a.mrd: bad");
        QTest::newRow("no file") << QByteArray() << 3 << 14 << QByteArray("3:14: bad");
        QTest::newRow("nothing") << QByteArray() << 0 << 0 << QByteArray("bad");
    }
    void theTextLeavesOutWhatIsUnknown()
    {
        QFETCH(const QByteArray, file);
        QFETCH(const int, line);
        QFETCH(const int, column);
        QFETCH(const QByteArray, text);
        const NxReadError error(file.constData(), line, column, "bad");
        QCOMPARE(QByteArray(error.getDebugString().toUtf8()), text);
        QCOMPARE(QByteArray(error.getFile().toUtf8()), file);
        QCOMPARE(error.getLine(), line);
        QCOMPARE(error.getColumn(), column);
        QCOMPARE(error.getMessage().toUtf8(), "bad");
    }
};

QTEST_APPLESS_MAIN(TestNxReadError)
#include "tst_NxReadError.moc"
