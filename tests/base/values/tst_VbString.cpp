#include "meridane/base/values/VbString.h"

#include <QString>
#include <QTest>

#include <string>
#include <utility>

namespace {

QString toQString(const VbString& text)
{
    return QString::fromUtf16(reinterpret_cast<const char16_t*>(text.toUtf16()), text.getLength());
}

} // namespace

class TestVbString : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNewStringIsEmptyAndNotNull()
    {
        const VbString text;
        QVERIFY(text.isEmpty());
        QVERIFY(!text.isNull());
        QCOMPARE(text.getLength(), 0);
        QCOMPARE(text.toUtf8(), "");
        QCOMPARE(text.toLatin1(), "");
        QCOMPARE(text.toUtf16()[0], static_cast<unsigned short>(0));
        QVERIFY(text.view().empty());
    }

    void aNullStringIsEmptyAndNull()
    {
        VbString text("something");
        text.makeNull();
        QVERIFY(text.isNull());
        QVERIFY(text.isEmpty());
        QCOMPARE(text.getLength(), 0);
        QCOMPARE(text.toUtf8(), "");
        QCOMPARE(text.toLatin1(), "");
        QCOMPARE(text.toUtf16()[0], static_cast<unsigned short>(0));
        QVERIFY(text == VbString());
    }

    void anAssignmentEndsTheNullState()
    {
        VbString text;
        text.makeNull();
        text = "";
        QVERIFY(!text.isNull());
        text.makeNull();
        text.makeNull();
        text = "a";
        QVERIFY(!text.isNull());
        QCOMPARE(text.toUtf8(), "a");
        text.makeNull();
        QVERIFY(!text.fromLatin1("").isNull());
        text.makeNull();
        const unsigned short nothing = 0;
        QVERIFY(!text.fromUtf16(&nothing).isNull());
        text.makeNull();
        text = VbString();
        QVERIFY(!text.isNull());
    }

    void nullPointersGiveANullString()
    {
        const char* const none = nullptr;
        QVERIFY(VbString(none).isNull());
        VbString text("a");
        text = none;
        QVERIFY(text.isNull());
        text = "a";
        QVERIFY(text.fromLatin1(nullptr).isNull());
        text = "a";
        QVERIFY(text.fromUtf16(nullptr).isNull());
    }

    void copiesAreTheirOwn()
    {
        VbString original("text");
        VbString copy(original);
        original = "other";
        QCOMPARE(copy.toUtf8(), "text");
        copy = original;
        QCOMPARE(copy.toUtf8(), "other");
        const VbString& same = copy;
        copy = same;
        QCOMPARE(copy.toUtf8(), "other");
        copy = copy.toUtf8() + 2; // a part of itself
        QCOMPARE(copy.toUtf8(), "her");
    }

    void theNullStateIsCopiedAndMoved()
    {
        VbString null;
        null.makeNull();
        const VbString copy(null);
        QVERIFY(copy.isNull());
        VbString assigned("a");
        assigned = null;
        QVERIFY(assigned.isNull());
        VbString moved(std::move(null));
        QVERIFY(moved.isNull());
        VbString moveAssigned;
        moveAssigned = std::move(moved);
        QVERIFY(moveAssigned.isNull());
    }

    void aMoveTakesTheText()
    {
        VbString source("text");
        const char* const bytes = source.toUtf8();
        const VbString target(std::move(source));
        QCOMPARE(target.toUtf8(), "text");
        QVERIFY(target.toUtf8() == bytes);
    }

    void theThreeFormsOfAText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("latin1");
        QTest::newRow("plain") << QStringLiteral("text") << QByteArray("text");
        QTest::newRow("Latin-1") << QStringLiteral("Gr\u00FC\u00DFe\u00FF")
                                 << QByteArray("Gr\xFC\xDF"
                                               "e\xFF");
        QTest::newRow("above Latin-1") << QStringLiteral("\u0100") << QByteArray("?");
        QTest::newRow("euro") << QStringLiteral("1 \u20AC") << QByteArray("1 ?");
        QTest::newRow("last of two bytes") << QStringLiteral("\u07FF\u0800") << QByteArray("??");
        QTest::newRow("last of three bytes") << QStringLiteral("\uFFFF") << QByteArray("?");
        QTest::newRow("around the surrogates") << QStringLiteral("\uD7FF\uE000") << QByteArray("??");
        QTest::newRow("surrogate pair") << QStringLiteral("\U0001F600!") << QByteArray("?!");
        QTest::newRow("first and last pair") << QStringLiteral("\U00010000\U0010FFFF") << QByteArray("??");
        QTest::newRow("control characters") << QStringLiteral("\t\n\u007F\u0080") << QByteArray("\t\n\x7F\x80");
    }
    void theThreeFormsOfAText()
    {
        QFETCH(const QString, text);
        QFETCH(const QByteArray, latin1);
        VbString tested;
        QVERIFY(&tested.fromUtf16(text.utf16()) == &tested);
        QCOMPARE(QByteArray(tested.toUtf8()), text.toUtf8());
        QCOMPARE(toQString(tested), text);
        QCOMPARE(tested.getLength(), text.size());
        QCOMPARE(QByteArray(tested.toLatin1()), latin1);
        QVERIFY(VbString(text.toUtf8().constData()) == tested);
    }

    void latin1GoesInAndOut()
    {
        QByteArray all;
        for (int c = 1; c < 256; ++c)
            all.append(static_cast<char>(c));
        VbString text;
        QVERIFY(&text.fromLatin1(all.constData()) == &text);
        QCOMPARE(QByteArray(text.toLatin1()), all);
        QCOMPARE(toQString(text), QString::fromLatin1(all));
        QCOMPARE(text.getLength(), 255);
    }

    void invalidUtf8IsReplaced_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("text");
        const QString one(QChar(0xFFFD));
        const QString a = QStringLiteral("a");
        QTest::newRow("lone continuation") << QByteArray("a\x80") << a + one;
        QTest::newRow("cut sequence at the end") << QByteArray("a\xC3") << a + one;
        QTest::newRow("cut sequence in the middle") << QByteArray("\xC3"
                                                                  "a")
                                                    << one + a;
        QTest::newRow("overlong slash") << QByteArray("\xC0\xAF") << one + one;
        QTest::newRow("overlong of three bytes") << QByteArray("\xE0\x80\xAF") << one + one + one;
        QTest::newRow("encoded surrogate") << QByteArray("\xED\xA0\x80") << one + one + one;
        QTest::newRow("beyond Unicode") << QByteArray("\xF4\x90\x80\x80") << one + one + one + one;
        QTest::newRow("byte that never occurs") << QByteArray("\xFF"
                                                              "a")
                                                << one + a;
        QTest::newRow("good ones stay") << QByteArray("\xC3\xBC\xFF\xE2\x82\xAC")
                                        << QStringLiteral("\u00FC\uFFFD\u20AC");
    }
    void invalidUtf8IsReplaced()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, text);
        QCOMPARE(toQString(VbString(bytes.constData())), text);
    }

    void loneSurrogatesAreReplaced_data()
    {
        QTest::addColumn<QList<ushort>>("units");
        QTest::addColumn<QString>("text");
        QTest::newRow("high at the end") << QList<ushort>{'a', 0xD800, 0} << QStringLiteral("a\uFFFD");
        QTest::newRow("high before a letter") << QList<ushort>{0xDBFF, 'a', 0} << QStringLiteral("\uFFFDa");
        QTest::newRow("high before a later character")
            << QList<ushort>{0xD800, 0xE000, 0} << QStringLiteral("\uFFFD\uE000");
        QTest::newRow("low alone") << QList<ushort>{0xDC00, 'a', 0} << QStringLiteral("\uFFFDa");
        QTest::newRow("wrong way round") << QList<ushort>{0xDC00, 0xD800, 0} << QStringLiteral("\uFFFD\uFFFD");
        QTest::newRow("high before a pair")
            << QList<ushort>{0xD83D, 0xD83D, 0xDE00, 0} << QStringLiteral("\uFFFD\U0001F600");
    }
    void loneSurrogatesAreReplaced()
    {
        QFETCH(const QList<ushort>, units);
        QFETCH(const QString, text);
        VbString tested;
        tested.fromUtf16(units.constData());
        QCOMPARE(toQString(tested), text);
    }

    void nulBytesAreKeptInAView()
    {
        const std::string bytes("a\0b", 3);
        const VbString text{std::string_view(bytes)};
        QCOMPARE(text.view(), std::string_view(bytes));
        QCOMPARE(text.getLength(), 3);
        QCOMPARE(text.toUtf16()[2], static_cast<unsigned short>('b'));
        QCOMPARE(VbString(text).view(), std::string_view(bytes));
        QVERIFY(!(text == VbString("a")));
        QCOMPARE(VbString(bytes.c_str()).getLength(), 1);
    }

    void pointersStayValidWhileOtherFormsAreAskedFor()
    {
        const VbString text("gr\xC3\xBC\xC3\x9F");
        const char* const utf8 = text.toUtf8();
        const char* const latin1 = text.toLatin1();
        const unsigned short* const utf16 = text.toUtf16();
        QVERIFY(text.toUtf8() == utf8);
        QVERIFY(text.toLatin1() == latin1);
        QVERIFY(text.toUtf16() == utf16);
        QCOMPARE(latin1, "gr\xFC\xDF");
    }

    void formsFollowAnAssignment()
    {
        VbString text("one");
        QCOMPARE(text.toLatin1(), "one");
        QCOMPARE(text.getLength(), 3);
        text = "four";
        QCOMPARE(text.toLatin1(), "four");
        QCOMPARE(text.getLength(), 4);
    }

    void comparison()
    {
        QVERIFY(VbString("a") == VbString("a"));
        QVERIFY(VbString("a") != VbString("b"));
        QVERIFY(VbString("a") != VbString());
        QVERIFY(VbString("\xFF") == VbString("\xEF\xBF\xBD"));
    }

    void aLargeTextIsKept()
    {
        const std::string megabytes(10'000'000, 'x');
        const VbString text{std::string_view(megabytes)};
        QCOMPARE(text.getLength(), 10'000'000);
        QVERIFY(text.view() == megabytes);
    }
};

QTEST_APPLESS_MAIN(TestVbString)
#include "tst_VbString.moc"
