#include "orvane/app/base/PlainText.h"

#include <QTest>
#include <QTextDocument>

// Names of nodes and files on their way to labels, tool tips, menus and titles.
class TestPlainText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aLineHasNoControlCharacters_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("line");
        QTest::newRow("plain") << QStringLiteral("left arm") << QStringLiteral("left arm");
        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("other scripts") << QStringLiteral("Жук é 臂 😀") << QStringLiteral("Жук é 臂 😀");
        QTest::newRow("markup") << QStringLiteral("<b>&amp;") << QStringLiteral("<b>&amp;");
        QTest::newRow("new lines") << QStringLiteral("a\nb\r\nc") << QStringLiteral("a␊b␍␊c");
        QTest::newRow("tab, escape, delete") << QStringLiteral("\t\x1b\x7f") << QStringLiteral("␉␛␡");
        QTest::newRow("NUL") << QString(QChar(0)) << QStringLiteral("␀");
        QTest::newRow("second set of control characters") << QString(QChar(0x9B)) << QString(QChar(0xFFFD));
        QTest::newRow("separators") << QString(QChar(0x2028)) + QChar(0x2029) << QStringLiteral("␤␤");
        QTest::newRow("marks that turn the direction")
            << QStringLiteral("a") + QChar(0x202E) + QChar(0x2067) << QStringLiteral("a") + QString(2, QChar(0xFFFD));
        QTest::newRow("halves of pairs") << QString(QChar(0xD83D)) + u'a' + QChar(0xDE00) + QChar(0xDCFF)
                                         << QStringLiteral("�a��");
    }
    void aLineHasNoControlCharacters()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, line);
        QCOMPARE(orvane::oneLine(text), line);
    }

    void aShortLineLosesItsMiddle()
    {
        QCOMPARE(orvane::shortLine(QStringLiteral("0123456789"), 10), QStringLiteral("0123456789"));
        QCOMPARE(orvane::shortLine(QStringLiteral("0123456789a"), 10), QStringLiteral("01234…789a"));
        QCOMPARE(orvane::shortLine(QString(100000, u'x'), 80).size(), 80);
        // A cut through a pair leaves no half of it.
        const QString pairs = QStringLiteral("😀").repeated(100);
        for (const qsizetype length : {10, 11})
            QVERIFY(orvane::shortLine(pairs, length).isValidUtf16());
    }

    void aToolTipShowsTheTextAsItIs_data()
    {
        QTest::addColumn<QString>("text");
        for (const char* const text : {"left arm", "<b>bold</b>", "<img src=\"/dev/zero\">", "a &lt; b", "a & b <i>",
                 "<?xml version=\"1.0\"?><p>", "<!doctype html>", "one\n<b>two</b>\nthree", "<b>  two  blanks"})
            QTest::newRow(text) << QString::fromUtf8(text);
    }
    void aToolTipShowsTheTextAsItIs()
    {
        QFETCH(const QString, text);
        const QString tip = orvane::plainToolTip(text);
        if (!Qt::mightBeRichText(tip)) {
            QCOMPARE(tip, text);
            return;
        }
        QTextDocument document;
        document.setHtml(tip);
        QCOMPARE(document.toPlainText(), text);
    }

    void aToolTipIsBounded()
    {
        const QString one = orvane::plainToolTip(QString(1000000, u'x'));
        const QStringList lines = one.split(u'\n');
        QCOMPARE(lines.size(), 20);
        QCOMPARE(lines.front(), QString(100, u'x'));
        QCOMPARE(lines.back(), QStringLiteral("…"));
        // Words stay whole where they can.
        const QStringList words = orvane::plainToolTip(QStringLiteral("123456789 ").repeated(12)).split(u'\n');
        QCOMPARE(words.front(), QStringLiteral("123456789 ").repeated(10));
        QCOMPARE(orvane::plainToolTip(QStringLiteral("a\n").repeated(1000)).count(u'\n'), 19);
    }

    void aMenuEntryHasNoMarksForKeys()
    {
        QCOMPARE(orvane::menuText(QStringLiteral("a & b")), QStringLiteral("a && b"));
        QCOMPARE(orvane::menuText(QStringLiteral("a\tCtrl+Q")), QStringLiteral("a␉Ctrl+Q"));
    }

    void aTitleHasNoMarkForAChange()
    {
        QWidget window;
        window.setWindowTitle(orvane::titleText(QStringLiteral("a[*]b[*]")) + QStringLiteral("[*] — Orvane"));
        window.setWindowModified(true);
        QCOMPARE(orvane::titleText(QStringLiteral("a[*]b[*]")), QStringLiteral("a[*][*]b[*][*]"));
    }
};

QTEST_MAIN(TestPlainText)
#include "tst_PlainText.moc"
