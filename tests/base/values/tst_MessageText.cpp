#include "meridane/base/values/MessageText.h"

#include <QTest>

using namespace meridane;

// Texts from files in messages to the user.
class TestMessageText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void anExcerptIsShortAndVisible_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("shown");
        QTest::newRow("empty") << QByteArray("") << QByteArray("");
        QTest::newRow("short") << QByteArray("arm") << QByteArray("arm");
        QTest::newRow("as long as it may be") << QByteArray("12345678") << QByteArray("12345678");
        QTest::newRow("too long") << QByteArray("123456789") << QByteArray("12345678…");
        QTest::newRow("cut in a character") << QByteArray("1234567\xC3\xBC") << QByteArray("1234567…");
        QTest::newRow("without a beginning of a character") << QByteArray(20, '\x80') << QByteArray("\xEF\xBF\xBD…");
        QTest::newRow("control characters") << QByteArray("a\n\x1b\x7f") << QByteArray("a\\x0a\\x1b\\x7f");
        QTest::newRow("invalid") << QByteArray("a\xFF") << QByteArray("a\xEF\xBF\xBD");
    }
    void anExcerptIsShortAndVisible()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QByteArray, shown);
        QCOMPARE(QByteArray::fromStdString(excerpt(text.toStdString(), 8)), shown);
    }

    void noTextWithoutMarkupBeginsATag()
    {
        QCOMPARE(withoutMarkup("plain text"), std::string("plain text"));
        QCOMPARE(withoutMarkup("<b>&lt;<"), std::string("<\u2060b>&\u2060lt;<\u2060"));
    }
};

QTEST_GUILESS_MAIN(TestMessageText)
#include "tst_MessageText.moc"
