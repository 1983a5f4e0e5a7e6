#include "import/HelperRun.h"

#include "orvane/transfer/PictureFrames.h"

#include <QBuffer>
#include <QImage>
#include <QTest>

/// The helper as a decoder of image files.
class TestPictureService : public QObject {
    Q_OBJECT

private:
    [[nodiscard]] static std::string request(const QByteArray& file)
    {
        return orvane::pictureRequest(static_cast<std::size_t>(file.size())) + file.toStdString();
    }

    [[nodiscard]] static QByteArray png(const QImage& image)
    {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "png");
        return bytes;
    }

    [[nodiscard]] static QImage pixel(const QColor& color)
    {
        QImage image(1, 1, QImage::Format_RGB32);
        image.fill(color);
        return image;
    }

private Q_SLOTS:
    void picturesComeBackInTheirOrder()
    {
        const HelperRun run = runHelper({QStringLiteral("--pictures")},
            request(png(pixel(QColor(1, 2, 3)))) + request("no picture") + request(png(pixel(QColor(4, 5, 6)))));
        QCOMPARE(run.error, QString());
        QCOMPARE(run.status, 0);
        QCOMPARE(run.output,
            "picture 1 1 3\n\1\2\3"
                + orvane::pictureRefusal("it isn't a PNG, JPEG, WebP, TIFF, BMP, TGA, GIF, PSD, PGM or PPM image")
                + "picture 1 1 3\n\4\5\6");
    }

    void itEndsWithItsInput()
    {
        const HelperRun run = runHelper({QStringLiteral("--pictures")});
        QCOMPARE(run.status, 0);
        QCOMPARE(run.output, std::string());
    }

    void anInputThatBreaksOffGivesOneLine_data()
    {
        QTest::addColumn<QByteArray>("input");
        QTest::newRow("in the file") << QByteArray("picture 10\n12345");
        QTest::newRow("in the line") << QByteArray("picture 1");
        QTest::newRow("no request") << QByteArray("draw me\n");
        QTest::newRow("no size") << QByteArray("picture 0\n");
        QTest::newRow("a line without end") << QByteArray(100, 'p');
    }
    void anInputThatBreaksOffGivesOneLine()
    {
        QFETCH(QByteArray, input);
        const HelperRun run = runHelper({QStringLiteral("--pictures")}, input.toStdString());
        QCOMPARE(run.status, 1);
        QVERIFY2(run.error.startsWith(QStringLiteral("standard input: ")), qPrintable(run.error));
        QCOMPARE(run.error.count(QLatin1Char('\n')), 1);
    }

    void theLargestImageIsDecoded()
    {
        QImage image(8192, 8192, QImage::Format_Grayscale8);
        image.fill(7);
        const HelperRun run = runHelper({QStringLiteral("--pictures")}, request(png(image)));
        QCOMPARE(run.status, 0);
        orvane::PictureReply reply;
        QVERIFY(reply.take(run.output) == orvane::PictureReply::State::Complete);
        const orvane::Picture picture = reply.takePicture();
        QCOMPARE(picture.width, 8192);
        QCOMPARE(picture.bytes.size(), std::size_t{8192} * 8192);
        QCOMPARE(int{picture.bytes.back()}, 7);
    }
};

QTEST_GUILESS_MAIN(TestPictureService)
#include "tst_PictureService.moc"
