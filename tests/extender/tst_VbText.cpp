#include "orvane/extender/VbText.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestVbText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aNullTextIsNullOnBothSides()
    {
        QVERIFY(orvane::toQString(VbString(nullptr)).isNull());
        QVERIFY(!orvane::toQString(VbString()).isNull());
        QVERIFY(orvane::toQString(VbString()).isEmpty());
    }

    void textsCrossAsTheyAre_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << u"text"_s;
        QTest::newRow("any character") << u"\u00DC\u20AC\U0001F600"_s;
        QTest::newRow("empty") << u""_s;
    }
    void textsCrossAsTheyAre()
    {
        QFETCH(const QString, text);
        QCOMPARE(orvane::toQString(orvane::toVbString(text)), text);
    }

    void halfACharacterIsReplaced()
    {
        QCOMPARE(orvane::toQString(orvane::toVbString(u"a"_s + QChar(0xD83D))), u"a\uFFFD"_s);
    }
};

QTEST_APPLESS_MAIN(TestVbText)
#include "tst_VbText.moc"
