#include "orvane/import/ImageCodec.h"

#include <QBuffer>
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

class tst_ImageCodec : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theBottomRowComesFirst_data();
    void theBottomRowComesFirst();
    void aGreyJpegHasOneComponent();
    void aPictureSurvivesEncoding_data();
    void aPictureSurvivesEncoding();
    void anEmptyPictureIsNotEncoded();
    void brokenFilesAreRefused_data();
    void brokenFilesAreRefused();
};

void tst_ImageCodec::theBottomRowComesFirst_data()
{
    QTest::addColumn<QByteArray>("file");
    QTest::addColumn<int>("components");
    QTest::newRow("PNG, true colour") << encoded(redAboveBlue(QImage::Format_RGB32), "png") << 3;
    QTest::newRow("PNG, with opacity") << encoded(redAboveBlue(QImage::Format_ARGB32), "png") << 4;
    QTest::newRow("PNG, palette") << encoded(redAboveBlue(QImage::Format_Indexed8), "png") << 3;
    QTest::newRow("PNG, 16 bits") << encoded(redAboveBlue(QImage::Format_RGBX64), "png") << 3;
    QTest::newRow("JPEG") << encoded(redAboveBlue(QImage::Format_RGB32), "jpg") << 3;
}

void tst_ImageCodec::theBottomRowComesFirst()
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
}

void tst_ImageCodec::aGreyJpegHasOneComponent()
{
    QImage image(2, 2, QImage::Format_Grayscale8);
    image.fill(200);
    const std::optional<Picture> picture = decodePicture(bytesOf(encoded(image, "jpg")));
    QVERIFY(picture);
    QCOMPARE(picture->components, 1);
    QCOMPARE(int(picture->bytes[0]), 200);
}

void tst_ImageCodec::aPictureSurvivesEncoding_data()
{
    QTest::addColumn<int>("components");
    QTest::newRow("grey") << 1;
    QTest::newRow("grey with opacity") << 2;
    QTest::newRow("colour") << 3;
    QTest::newRow("colour with opacity") << 4;
}

void tst_ImageCodec::aPictureSurvivesEncoding()
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

void tst_ImageCodec::anEmptyPictureIsNotEncoded()
{
    QVERIFY(encodePng(Picture()).empty());
}

void tst_ImageCodec::brokenFilesAreRefused_data()
{
    QTest::addColumn<QByteArray>("file");
    const QByteArray png = encoded(redAboveBlue(QImage::Format_RGB32), "png");
    const QByteArray jpeg = encoded(redAboveBlue(QImage::Format_RGB32), "jpg");
    QByteArray huge = png;
    huge.replace(16, 8, QByteArray::fromHex("7fffffff7fffffff")); // width and height
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("text") << QByteArray("this is no picture at all");
    QTest::newRow("another format") << encoded(redAboveBlue(QImage::Format_RGB32), "bmp");
    QTest::newRow("PNG, signature only") << png.left(8);
    QTest::newRow("PNG, cut off in its head") << png.left(20);
    QTest::newRow("PNG, larger than it is") << huge;
    QTest::newRow("JPEG, signature only") << jpeg.left(3);
    QTest::newRow("JPEG, cut off in its head") << jpeg.left(100);
}

void tst_ImageCodec::brokenFilesAreRefused()
{
    QFETCH(QByteArray, file);
    QVERIFY(!decodePicture(bytesOf(file)));
}

QTEST_GUILESS_MAIN(tst_ImageCodec)
#include "tst_ImageCodec.moc"
