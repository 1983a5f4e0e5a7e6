#include "orvane/app/images/ImageHeader.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QTest>

#include <random>

/// The size that image files state, read without decoding them.
class TestImageHeader : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void formatsThatQtWritesStateTheirSize_data()
    {
        QTest::addColumn<QByteArray>("format");
        for (const char* format : {"png", "jpg", "bmp", "ppm", "pgm"})
            QTest::newRow(format) << QByteArray(format);
    }
    void formatsThatQtWritesStateTheirSize()
    {
        QFETCH(QByteArray, format);
        const auto size = orvane::statedImageSize(source(written(format, QSize(37, 21))));
        QVERIFY(size);
        QCOMPARE(size->width, 37U);
        QCOMPARE(size->height, 21U);
    }

    void filesOfOtherProgramsStateTheirSize_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString& name : QDir(QStringLiteral(ORVANE_TEST_PICTURES)).entryList(QDir::Files)) {
            if (!name.endsWith(QStringLiteral(".cpp")))
                QTest::newRow(qPrintable(name)) << name;
        }
    }
    void filesOfOtherProgramsStateTheirSize()
    {
        QFETCH(QString, name);
        QFile file(QStringLiteral(ORVANE_TEST_PICTURES "/") + name);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const auto size = orvane::statedImageSize(source(file.readAll()));
        QVERIFY(size);
        QVERIFY2(size->width > 0 && size->width < 30000 && size->height > 0 && size->height < 30000,
            qPrintable(QStringLiteral("%1 by %2").arg(size->width).arg(size->height)));
    }

    void otherFilesAreNoImages()
    {
        for (const char* content : {"", "P", "text of some length", "#mrd 1.0\n", "{\"asset\": {}}"})
            QVERIFY2(!orvane::statedImageSize(source(content)), content);
    }

    void brokenFilesDoNoHarm()
    {
        std::mt19937 random(5);
        for (const char* format : {"png", "jpg", "bmp", "ppm"}) {
            const QByteArray good = written(format, QSize(37, 21));
            for (int round = 0; round < 300; ++round) {
                QByteArray bytes = good.left(static_cast<qsizetype>(random() % static_cast<unsigned>(good.size())));
                for (int change = 0; change < 3 && !bytes.isEmpty(); ++change)
                    bytes[static_cast<qsizetype>(random() % static_cast<unsigned>(bytes.size()))]
                        = static_cast<char>(random());
                static_cast<void>(orvane::statedImageSize(source(bytes)));
            }
            // A header that is cut off states nothing.
            const auto size = orvane::statedImageSize(source(good.left(10)));
            QVERIFY(!size || size->width == 0 || size->height == 0 || QByteArray(format) == "ppm");
        }
    }

private:
    static orvane::ByteSource source(const QByteArray& bytes)
    {
        return [bytes](std::uint64_t offset, std::size_t count) {
            const auto start = static_cast<qsizetype>(std::min<std::uint64_t>(offset, std::uint64_t(bytes.size())));
            return bytes.mid(start, static_cast<qsizetype>(count)).toStdString();
        };
    }

    static QByteArray written(const QByteArray& format, const QSize& size)
    {
        QImage image(size, QImage::Format_RGB888);
        image.fill(Qt::red);
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, format.constData());
        return buffer.data();
    }
};

QTEST_GUILESS_MAIN(TestImageHeader)
#include "tst_ImageHeader.moc"
