#include "TestFiles.h"

#include "orvane/import/pictures/ImageCodec.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QTest>

using orvane::decodePicture;
using orvane::encodePng;
using orvane::Picture;

namespace {

std::span<const unsigned char> bytesOf(const QByteArray& bytes)
{
    return {reinterpret_cast<const unsigned char*>(bytes.constData()), static_cast<std::size_t>(bytes.size())};
}

QByteArray encoded(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, 100);
    return bytes;
}

/// A picture that the tests come with: red above, blue below.
QByteArray pictureFile(const char* name)
{
    return readFile(QStringLiteral(ORVANE_TEST_PICTURES "/") + QLatin1String(name));
}

// Large enough for a format that shares colours between pixels.
constexpr int width = 17;
constexpr int height = 32;

QImage redAboveBlue(QImage::Format format)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, y < height / 2 ? qRgb(255, 0, 0) : qRgb(0, 0, 255));
    }
    return image.convertToFormat(format);
}

} // namespace

class TestImageCodec : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theBottomRowComesFirst_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<int>("components");
        QTest::newRow("PNG, true colour") << encoded(redAboveBlue(QImage::Format_RGB32), "png") << 3;
        QTest::newRow("PNG, with opacity") << encoded(redAboveBlue(QImage::Format_ARGB32), "png") << 4;
        QTest::newRow("PNG, palette") << encoded(redAboveBlue(QImage::Format_Indexed8), "png") << 3;
        QTest::newRow("PNG, 16 bits") << encoded(redAboveBlue(QImage::Format_RGBX64), "png") << 3;
        QTest::newRow("JPEG") << encoded(redAboveBlue(QImage::Format_RGB32), "jpg") << 3;
        QTest::newRow("JPEG, colours of printing") << pictureFile("cmyk.jpg") << 3;
        QTest::newRow("BMP") << encoded(redAboveBlue(QImage::Format_RGB32), "bmp") << 3;
        QTest::newRow("PPM") << encoded(redAboveBlue(QImage::Format_RGB32), "ppm") << 3;
        QTest::newRow("GIF") << pictureFile("plain.gif") << 4;
        QTest::newRow("GIF, moving") << pictureFile("moving.gif") << 4;
        QTest::newRow("PSD") << pictureFile("plain.psd") << 4;
        QTest::newRow("TGA") << pictureFile("plain.tga") << 3;
        QTest::newRow("TGA, from the top") << pictureFile("topdown.tga") << 3;
        QTest::newRow("TGA, packed") << pictureFile("packed.tga") << 3;
        QTest::newRow("TGA, with opacity") << pictureFile("clear.tga") << 4;
        QTest::newRow("TIFF, packed") << pictureFile("packed.tif") << 3;
        QTest::newRow("TIFF, the other byte order") << pictureFile("big.tif") << 3;
        QTest::newRow("TIFF, with opacity") << pictureFile("clear.tif") << 4;
        QTest::newRow("WebP") << pictureFile("plain.webp") << 3;
        QTest::newRow("WebP, with opacity") << pictureFile("clear.webp") << 4;
    }

    void theBottomRowComesFirst()
    {
        QFETCH(QByteArray, file);
        QFETCH(int, components);
        const std::optional<Picture> picture = decodePicture(bytesOf(file));
        QVERIFY(picture);
        QCOMPARE(picture->width, width);
        QCOMPARE(picture->height, height);
        QCOMPARE(picture->components, components);
        QCOMPARE(picture->bytes.size(), std::size_t(width * height * components));
        const unsigned char* below = picture->bytes.data();
        const unsigned char* above = below + width * (height - 1) * components;
        QVERIFY2(below[2] > 180 && below[0] < 100, "blue is below"); // not exact: JPEG blurs
        QVERIFY2(above[0] > 180 && above[2] < 100, "red is above");
        if (QByteArray(QTest::currentDataTag()).endsWith("opacity") && file.at(1) != 'P') {
            QCOMPARE(int{below[0]}, 0);
            QCOMPARE(int{below[2]}, 255);
            QVERIFY2(below[3] == 127 || below[3] == 128, qPrintable(QString::number(below[3])));
        }
    }

    void aGreyJpegHasOneComponent()
    {
        QImage image(2, 2, QImage::Format_Grayscale8);
        image.fill(200);
        const std::optional<Picture> picture = decodePicture(bytesOf(encoded(image, "jpg")));
        QVERIFY(picture);
        QCOMPARE(picture->components, 1);
        QCOMPARE(int(picture->bytes[0]), 200);
    }

    void aPictureSurvivesEncoding_data()
    {
        QTest::addColumn<int>("components");
        QTest::newRow("grey") << 1;
        QTest::newRow("grey with opacity") << 2;
        QTest::newRow("colour") << 3;
        QTest::newRow("colour with opacity") << 4;
    }

    void aPictureSurvivesEncoding()
    {
        QFETCH(int, components);
        Picture picture{5, 3, components, {}};
        for (int index = 0; index < 5 * 3 * components; ++index)
            picture.bytes.push_back(static_cast<unsigned char>(index * 7));
        const std::string file = encodePng(picture);
        const std::optional<Picture> result = decodePicture(bytesOf(QByteArray::fromStdString(file)));
        QVERIFY(result);
        QCOMPARE(result->width, 5);
        QCOMPARE(result->height, 3);
        QCOMPARE(result->components, components);
        QVERIFY(result->bytes == picture.bytes);
    }

    void anEmptyPictureIsNotEncoded() { QVERIFY(encodePng(Picture()).empty()); }

    void brokenFilesAreRefused_data()
    {
        QTest::addColumn<QByteArray>("file");
        const QByteArray png = encoded(redAboveBlue(QImage::Format_RGB32), "png");
        const QByteArray jpeg = encoded(redAboveBlue(QImage::Format_RGB32), "jpg");
        QByteArray huge = png;
        huge.replace(16, 8, QByteArray::fromHex("7fffffff7fffffff")); // width and height
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("text") << QByteArray("this is no picture at all");
        QTest::newRow("another format") << encoded(redAboveBlue(QImage::Format_RGB32), "xpm");
        QTest::newRow("SVG") << QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"1\" height=\"1\"/>");
        QTest::newRow("SVG, compressed") << QByteArray::fromHex("1f8b0800000000000003b3292e4b570000");
        QTest::newRow("WebP, moving") << "RIFF" + QByteArray::fromHex("16000000") + "WEBPVP8X"
                + QByteArray::fromHex("0a00000002000000000000000000");
        QTest::newRow("PPM, larger than it may be") << QByteArray("P6 16384 16384 255 ");
        QTest::newRow("TGA, of too few bytes")
            << QByteArray::fromBase64("AAAKAAAAZgB1cmUgMQphYiAAIGFNYXRlcmlhbG1lag==");
        QTest::newRow("PPM, cut off") << QByteArray("P6 20 20 255 abc");
        for (const char* name :
            {"plain.gif", "plain.psd", "plain.tga", "packed.tga", "packed.tif", "big.tif", "plain.webp"})
            QTest::addRow("the head of %s", name) << pictureFile(name).left(12);
        QTest::newRow("PNG, signature only") << png.left(8);
        QTest::newRow("PNG, cut off in its head") << png.left(20);
        QTest::newRow("PNG, larger than it is") << huge;
        QTest::newRow("JPEG, signature only") << jpeg.left(3);
        QTest::newRow("JPEG, cut off in its head") << jpeg.left(100);
    }

    void brokenFilesAreRefused()
    {
        QFETCH(QByteArray, file);
        QVERIFY(!decodePicture(bytesOf(file)));
    }

    void aRefusalSaysWhy()
    {
        std::string problem;
        QVERIFY(!decodePicture(bytesOf("no picture"), &problem));
        QCOMPARE(problem, std::string("it isn't a PNG, JPEG, WebP, TIFF, BMP, TGA, GIF, PSD, PGM or PPM image"));
        QVERIFY(!decodePicture(bytesOf(pictureFile("plain.gif").left(20)), &problem));
        QVERIFY(problem.starts_with("the image is broken"));
    }
};

QTEST_GUILESS_MAIN(TestImageCodec)
#include "tst_ImageCodec.moc"
