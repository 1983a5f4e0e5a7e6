#include "orvane/import/pictures/Orientation.h"

#include <QByteArray>
#include <QTest>

using orvane::Picture;

namespace {

/// A JPEG file of no picture but of Exif data with that orientation.
QByteArray exifFile(const char* orientation)
{
    // One entry of the first directory: tag 0x0112, a short number, one of them.
    const QByteArray data = QByteArray("Exif\0\0", 6) + "MM" + QByteArray::fromHex("002a00000008")
        + QByteArray::fromHex("0001"
                              "0112"
                              "0003"
                              "00000001")
        + QByteArray::fromHex(orientation)
        + QByteArray::fromHex("0000"
                              "00000000");
    const auto size = static_cast<char>(data.size() + 2);
    return QByteArray::fromHex("ffd8ffe100") + size + data + QByteArray::fromHex("ffd9");
}

int orientationOf(const QByteArray& bytes)
{
    return orvane::orientationOf(
        {reinterpret_cast<const unsigned char*>(bytes.constData()), static_cast<std::size_t>(bytes.size())});
}

/// The letters of a picture of one byte a pixel, the top row first.
QByteArray letters(const Picture& picture)
{
    QByteArray text;
    for (int row = picture.height - 1; row >= 0; --row) {
        text += QByteArray(reinterpret_cast<const char*>(picture.bytes.data()) + row * picture.width, picture.width);
        text += row > 0 ? "/" : "";
    }
    return text;
}

} // namespace

class TestOrientation : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void exifDataTellTheOrientation()
    {
        QCOMPARE(orientationOf(exifFile("0001")), 1);
        QCOMPARE(orientationOf(exifFile("0006")), 6);
        QCOMPARE(orientationOf(exifFile("0008")), 8);
    }

    void withoutUsableDataAPictureIsUpright()
    {
        QCOMPARE(orientationOf(QByteArray()), 1);
        QCOMPARE(orientationOf("no picture"), 1);
        QCOMPARE(orientationOf(exifFile("0000")), 1);
        QCOMPARE(orientationOf(exifFile("0009")), 1);
        QCOMPARE(orientationOf(exifFile("0006").left(30)), 1);
    }

    void aPictureIsTurnedAsItWasSeen_data()
    {
        QTest::addColumn<int>("orientation");
        QTest::addColumn<QByteArray>("seen");
        QTest::newRow("upright") << 1 << QByteArray("abc/def");
        QTest::newRow("mirrored") << 2 << QByteArray("cba/fed");
        QTest::newRow("upside down") << 3 << QByteArray("fed/cba");
        QTest::newRow("upside down and mirrored") << 4 << QByteArray("def/abc");
        QTest::newRow("rows are columns") << 5 << QByteArray("ad/be/cf");
        QTest::newRow("a quarter turn clockwise") << 6 << QByteArray("da/eb/fc");
        QTest::newRow("rows are columns, upside down") << 7 << QByteArray("fc/eb/da");
        QTest::newRow("a quarter turn counterclockwise") << 8 << QByteArray("cf/be/ad");
        QTest::newRow("none that there is") << 9 << QByteArray("abc/def");
    }
    void aPictureIsTurnedAsItWasSeen()
    {
        QFETCH(int, orientation);
        QFETCH(QByteArray, seen);
        const Picture stored{3, 2, 1, {'d', 'e', 'f', 'a', 'b', 'c'}}; // the bottom row first
        QCOMPARE(letters(orvane::upright(stored, orientation)), seen);
    }

    void aPixelStaysWhole()
    {
        const Picture stored{2, 1, 2, {1, 2, 3, 4}};
        QCOMPARE(orvane::upright(stored, 2).bytes, (std::vector<unsigned char>{3, 4, 1, 2}));
    }
};

QTEST_GUILESS_MAIN(TestOrientation)
#include "tst_Orientation.moc"
