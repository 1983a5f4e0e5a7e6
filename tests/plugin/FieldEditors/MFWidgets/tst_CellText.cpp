#include "FieldEditors/MFWidgets/CellText.h"

#include <QApplication>
#include <QFontMetrics>
#include <QTest>

class TestCellText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void textThatFitsIsWhole()
    {
        const QFontMetrics metrics(QApplication::font());
        const QString text = QStringLiteral("123.456");
        QCOMPARE(orvane::fittingText(text, metrics, metrics.horizontalAdvance(text)), text);
        QVERIFY(orvane::fittingText(text, metrics, metrics.horizontalAdvance(text) - 1) != text);
    }

    void wideTextShowsItsBeginning()
    {
        const QFontMetrics metrics(QApplication::font());
        const QString text = QStringLiteral("The quick brown fox jumps over the lazy dog");
        for (int room = 30; room < metrics.horizontalAdvance(text); ++room) {
            const QString shown = orvane::fittingText(text, metrics, room);
            QVERIFY(shown.endsWith(QLatin1String("...")));
            const QString beginning = shown.chopped(3);
            QVERIFY(text.startsWith(beginning));
            QVERIFY(!beginning.isEmpty());
            QVERIFY(metrics.horizontalAdvance(QStringLiteral("...") + beginning) < room);
            QVERIFY(metrics.horizontalAdvance(QStringLiteral("...") + text.left(beginning.size() + 1)) >= room);
        }
    }

    void narrowRoomShowsOneCharacter()
    {
        const QFontMetrics metrics(QApplication::font());
        for (const int room : {8, 0, -4})
            QCOMPARE(orvane::fittingText(QStringLiteral("wide"), metrics, room), QStringLiteral("w..."));
    }

    void emptyTextStaysEmpty()
    {
        const QFontMetrics metrics(QApplication::font());
        QCOMPARE(orvane::fittingText({}, metrics, -4), QString());
    }

    void characterOfTwoUnitsIsNotCut()
    {
        const QFontMetrics metrics(QApplication::font());
        const QString face = QString::fromUtf8("\xF0\x9F\x98\x80");
        QCOMPARE(face.size(), 2);
        QCOMPARE(orvane::fittingText(face.repeated(30), metrics, 1), face + QStringLiteral("..."));
        for (int room = 20; room < 120; ++room) {
            const QString shown = orvane::fittingText(face.repeated(30), metrics, room);
            QCOMPARE(shown.chopped(3).size() % 2, 0);
        }
    }

    void halfACharacterIsACharacter_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("first half") << QString(QChar(0xD83D)) + QStringLiteral("wide");
        QTest::newRow("second half") << QString(QChar(0xDE00)) + QStringLiteral("wide");
    }
    void halfACharacterIsACharacter()
    {
        QFETCH(const QString, text);
        const QFontMetrics metrics(QApplication::font());
        QCOMPARE(orvane::fittingText(text, metrics, 0), text.left(1) + QStringLiteral("..."));
        QCOMPARE(orvane::fittingText(text.left(1), metrics, 0), text.left(1) + QStringLiteral("..."));
    }

    void longTextIsShownLikeItsBeginning()
    {
        const QFontMetrics metrics(QApplication::font());
        const QString text = QStringLiteral("iiii 1234 ").repeated(10'000);
        QCOMPARE(orvane::fittingText(text, metrics, 100), orvane::fittingText(text.left(200), metrics, 100));
    }
};

QTEST_MAIN(TestCellText)
#include "tst_CellText.moc"
