#include "meridane/base/values/Unicode.h"

#include <QString>
#include <QTest>

#include <random>

using namespace meridane;

class TestUnicode : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theFirstInvalidByteIsFound_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("position"); // -1: valid
        QTest::newRow("empty") << QByteArray() << -1;
        QTest::newRow("plain") << QByteArray("plain") << -1;
        QTest::newRow("NUL byte") << QByteArray("a\0b", 3) << -1;
        QTest::newRow("two, three and four bytes") << QByteArray("\xC3\xBC\xE2\x82\xAC\xF0\x9F\x98\x80") << -1;
        QTest::newRow("lone continuation") << QByteArray("ab\x80") << 2;
        QTest::newRow("cut at the end") << QByteArray("ab\xE2\x82") << 2;
        QTest::newRow("overlong") << QByteArray("\xC1\xBF") << 0;
        QTest::newRow("surrogate") << QByteArray("a\xED\xBF\xBF") << 1;
        QTest::newRow("beyond Unicode") << QByteArray("a\xF5\x80\x80\x80") << 1;
    }
    void theFirstInvalidByteIsFound()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const int, position);
        const std::size_t found
            = findInvalidUtf8(std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
        QCOMPARE(found == std::string_view::npos ? -1 : static_cast<int>(found), position);
    }

    void everyCodePointGoesThroughUtf16AndBack()
    {
        std::string all;
        for (char32_t c = 1; c <= 0x10FFFF; ++c) {
            if (c < 0xD800 || c > 0xDFFF)
                appendUtf8(all, c);
        }
        QVERIFY(findInvalidUtf8(all) == std::string_view::npos);
        const std::u16string utf16 = utf8ToUtf16(all);
        QVERIFY(utf16ToUtf8(utf16) == all);
        QVERIFY(QString::fromStdU16String(utf16).toStdString() == all);
    }

    void whatIsNoCodePointBecomesTheReplacement_data()
    {
        QTest::addColumn<uint>("value");
        QTest::newRow("first surrogate") << 0xD800U;
        QTest::newRow("last surrogate") << 0xDFFFU;
        QTest::newRow("beyond Unicode") << 0x110000U;
        QTest::newRow("greatest") << 0xFFFFFFFFU;
    }
    void whatIsNoCodePointBecomesTheReplacement()
    {
        QFETCH(const uint, value);
        std::string text;
        appendUtf8(text, static_cast<char32_t>(value));
        QCOMPARE(text, std::string("\xEF\xBF\xBD"));
    }

    void whateverBytesComeTheResultIsValidAndValidTextStays()
    {
        std::mt19937 random(1); // the same bytes at each run
        for (int round = 0; round < 2000; ++round) {
            std::string bytes(random() % 16, '\0');
            for (char& byte : bytes)
                byte = static_cast<char>(random() % 4 == 0 ? random() % 128 : 128 + random() % 128);
            const std::string replaced = replaceInvalidUtf8(bytes);
            QVERIFY(findInvalidUtf8(replaced) == std::string_view::npos);
            QVERIFY(replaceInvalidUtf8(replaced) == replaced);
            QCOMPARE(findInvalidUtf8(bytes) == std::string_view::npos, replaced == bytes);
        }
    }

    void latin1CrossesByteByByte()
    {
        QCOMPARE(latin1ToUtf8("a\xE4\xFF"), std::string("a\xC3\xA4\xC3\xBF"));
        QCOMPARE(utf8ToLatin1("a\xC3\xA4\xE2\x82\xAC"), std::string("a\xE4?"));
    }
};

QTEST_APPLESS_MAIN(TestUnicode)
#include "tst_Unicode.moc"
