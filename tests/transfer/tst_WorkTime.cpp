#include "orvane/transfer/WorkTime.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <limits>

/// How long the helper may work.
class TestWorkTime : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theTimeFollowsFromTheSize_data()
    {
        QTest::addColumn<quint64>("bytes");
        QTest::addColumn<int>("seconds");
        QTest::newRow("nothing") << quint64{0} << 20;
        QTest::newRow("152 bytes") << quint64{152} << 20;
        QTest::newRow("1 MiB") << (quint64{1} << 20) << 22;
        QTest::newRow("100 MiB") << (quint64{100} << 20) << 220;
        QTest::newRow("as much as there can be") << std::numeric_limits<quint64>::max() << 20 + 2 * (1 << 20);
    }

    void theTimeFollowsFromTheSize()
    {
        QFETCH(quint64, bytes);
        QFETCH(int, seconds);
        QCOMPARE(orvane::processorTimeFor(bytes).count(), seconds);
    }

    void aModelIsAsLargeAsItsFiles()
    {
        const QTemporaryDir folder;
        const auto write = [&](const char* name, int size) {
            QFile file(folder.filePath(QString::fromUtf8(name)));
            return file.open(QIODevice::WriteOnly) && file.write(QByteArray(size, 'x')) == size;
        };
        QVERIFY(write("ship.gltf", 1) && write("ship.mtl", 20) && write("buffer0.bin", 300));
        QVERIFY(write("car.gltf", 4000) && write("shipyard.gltf", 50000));
        QVERIFY(QDir(folder.path()).mkpath(QStringLiteral("ship.d")));
        QCOMPARE(orvane::modelSize(folder.filePath(QStringLiteral("ship.gltf")).toStdString()), std::uintmax_t{321});
        // From within the folder, too.
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder.path()));
        const std::uintmax_t size = orvane::modelSize("ship.gltf");
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(size, std::uintmax_t{321});
    }

    void aMissingModelHasNoSize() { QCOMPARE(orvane::modelSize("/nowhere/at/all.obj"), std::uintmax_t{0}); }
};

QTEST_GUILESS_MAIN(TestWorkTime)
#include "tst_WorkTime.moc"
