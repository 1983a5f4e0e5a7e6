#include "scene/NotificationCount.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/single/NxSFImage.h"
#include "meridane/scene/text/TextReader.h"

#include <QTest>

#include <array>

namespace {

const std::array<unsigned char, 12> twoByTwo{0xff, 0x80, 0, 1, 2, 3, 4, 5, 6, 0xaa, 0xbb, 0xcc};

// An image of two by two pixels, which nothing refused may change.
struct TwoByTwo {
    NxSFImage field{nullptr, "image"};

    TwoByTwo() { [[maybe_unused]] const bool taken = field.setValue(VbVec2s(2, 2), 3, twoByTwo.data()); }

    [[nodiscard]] bool isUntouched() const
    {
        VbVec2s size;
        int components = 0;
        const unsigned char* const bytes = field.getValue(size, components);
        return size == VbVec2s(2, 2) && components == 3 && std::equal(twoByTwo.begin(), twoByTwo.end(), bytes);
    }
};

} // namespace

class TestNxSFImage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNewImageIsEmpty()
    {
        const NxSFImage field(nullptr, "image");
        VbVec2s size(7, 7);
        int components = 7;
        QVERIFY(field.getValue(size, components) == nullptr);
        QVERIFY(size == VbVec2s(0, 0));
        QCOMPARE(components, 0);
    }

    void bytesAreCopied()
    {
        TwoByTwo image;
        QVERIFY(image.isUntouched());
        VbVec2s size;
        int components = 0;
        QVERIFY(image.field.getValue(size, components) != twoByTwo.data());
        QVERIFY(image.field.valueBytes() >= twoByTwo.size());
        NotificationCount notifications(image.field);
        QVERIFY(image.field.setValue(VbVec2s(1, 1), 1, twoByTwo.data()));
        QCOMPARE(notifications.take(), 1);
    }

    void bytesCanBeMovedIn()
    {
        NxSFImage field(nullptr, "image");
        std::vector<unsigned char> bytes{1, 2, 3, 4};
        const unsigned char* const data = bytes.data();
        QVERIFY(field.setValue(VbVec2s(1, 2), 2, std::move(bytes)));
        VbVec2s size;
        int components = 0;
        QVERIFY(field.getValue(size, components) == data);
        QVERIFY(size == VbVec2s(1, 2));
        QCOMPARE(components, 2);
    }

    void aMovedVectorMustFit()
    {
        TwoByTwo image;
        QVERIFY(!image.field.setValue(VbVec2s(1, 1), 3, std::vector<unsigned char>(2)));
        QVERIFY(!image.field.setValue(VbVec2s(1, 1), 3, std::vector<unsigned char>(4)));
        QVERIFY(!image.field.setValue(VbVec2s(0, 0), 0, std::vector<unsigned char>(1)));
        QVERIFY(image.isUntouched());
    }

    void bytesCanBeTakenOut()
    {
        TwoByTwo image;
        VbVec2s size;
        int components = 0;
        const unsigned char* const place = image.field.getValue(size, components);
        NotificationCount notifications(image.field);
        const std::vector<unsigned char> bytes = image.field.takeBytes();
        QVERIFY(bytes.data() == place);
        QVERIFY(std::equal(twoByTwo.begin(), twoByTwo.end(), bytes.begin(), bytes.end()));
        QVERIFY(image.field.getValue(size, components) == nullptr);
        QCOMPARE(size, VbVec2s(0, 0));
        QCOMPARE(components, 0);
        QCOMPARE(notifications.take(), 1);
    }

    void sizesThatMakeNoImageAreRefused_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("height");
        QTest::addColumn<int>("components");
        QTest::newRow("no width") << 0 << 1 << 1;
        QTest::newRow("no height") << 1 << 0 << 1;
        QTest::newRow("no components") << 1 << 1 << 0;
        QTest::newRow("components alone") << 0 << 0 << 3;
        QTest::newRow("five components") << 1 << 1 << 5;
        QTest::newRow("negative width") << -1 << 1 << 1;
        QTest::newRow("two negative sides") << -1 << -1 << 1;
        QTest::newRow("negative components") << 1 << 1 << -1;
    }

    void sizesThatMakeNoImageAreRefused()
    {
        QFETCH(const int, width);
        QFETCH(const int, height);
        QFETCH(const int, components);
        TwoByTwo image;
        NotificationCount notifications(image.field);
        const VbVec2s size(static_cast<short>(width), static_cast<short>(height));
        QVERIFY(!image.field.setValue(size, components, twoByTwo.data()));
        const QByteArray text = QByteArray::number(width) + ' ' + QByteArray::number(height) + ' '
            + QByteArray::number(components) + " 0 0 0 0 0 0";
        QVERIFY(!image.field.set(text.constData()));
        QVERIFY(image.isUntouched());
        QCOMPARE(notifications.take(), 0);
    }

    void theEmptyImageTakesNoBytes()
    {
        TwoByTwo image;
        QVERIFY(!image.field.setValue(VbVec2s(2, 2), 3, nullptr));
        QVERIFY(image.isUntouched());
        QVERIFY(image.field.setValue(VbVec2s(0, 0), 0, nullptr));
        VbVec2s size;
        int components = 7;
        QVERIFY(image.field.getValue(size, components) == nullptr);
        QCOMPARE(components, 0);
    }

    void pixelsAreHexadecimalNumbers()
    {
        const TwoByTwo image;
        VbString text;
        image.field.get(text);
        QVERIFY(text == VbString("2 2 3 0xff8000 0x010203 0x040506 0xaabbcc"));
    }

    void aSizeThatTheTextCannotFillAsksForNoMemory()
    {
        NxSFImage field(nullptr, "image");
        meridane::TextReader reader("32767 32767 4 0x00000000");
        QCOMPARE(field.readText(reader, true, 1), NxField::Progress::Failed);
        QCOMPARE(reader.expected(), std::string("a number for each of 1073676289 pixels"));
        QVERIFY(field.valueBytes() < 1000);
    }

    void anImageIsReadPixelByPixel()
    {
        NxSFImage field(nullptr, "image");
        meridane::TextReader reader("3 1 1 1 2 3 rest");
        QCOMPARE(field.readText(reader, true, 1), NxField::Progress::More);
        QCOMPARE(field.readText(reader, false, 1), NxField::Progress::More);
        QCOMPARE(field.readText(reader, false, 1), NxField::Progress::Done);
        QVERIFY(reader.rest() == " rest");
    }

    void pixelsTooLargeAreTheFailure()
    {
        NxSFImage field(nullptr, "image");
        meridane::TextReader reader("2 1 2 0xffff 0x10000");
        QCOMPARE(field.readText(reader, true, 10), NxField::Progress::Failed);
        QCOMPARE(reader.expected(), std::string("a pixel of 2 bytes"));
        QCOMPARE(reader.failurePosition(), std::size_t{13});
    }
};

QTEST_APPLESS_MAIN(TestNxSFImage)
#include "tst_NxSFImage.moc"
