#include "orvane/app/look/Look.h"
#include "orvane/app/look/ReadablePalette.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QFontMetrics>
#include <QPalette>
#include <QRegularExpression>
#include <QStringList>
#include <QTest>

#include <cmath>
#include <vector>

using namespace orvane::look;

// The colours and sizes that all parts of the window share.
class TestLook : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void contrastIsThatOfTheGuidelines_data()
    {
        QTest::addColumn<QColor>("left");
        QTest::addColumn<QColor>("right");
        QTest::addColumn<double>("expected");
        QTest::newRow("black on white") << QColor(Qt::black) << QColor(Qt::white) << 21.0;
        QTest::newRow("white on black") << QColor(Qt::white) << QColor(Qt::black) << 21.0;
        QTest::newRow("none") << QColor(90, 20, 30) << QColor(90, 20, 30) << 1.0;
        QTest::newRow("pure red on white") << QColor(255, 0, 0) << QColor(Qt::white) << 3.998;
        QTest::newRow("the lightest grey that is readable on white")
            << QColor(0x76, 0x76, 0x76) << QColor(Qt::white) << 4.542;
    }
    void contrastIsThatOfTheGuidelines()
    {
        QFETCH(const QColor, left);
        QFETCH(const QColor, right);
        QFETCH(const double, expected);
        QVERIFY2(
            std::abs(contrast(left, right) - expected) < 0.001, qPrintable(QString::number(contrast(left, right))));
    }

    void everyTintIsReadableOnEveryBackground()
    {
        std::vector<QColor> backgrounds{QColor(0xEF, 0xEF, 0xEF), QColor(0x30, 0x8C, 0xC6), QColor(0x1E, 0x1E, 0x1E)};
        for (int red = 0; red <= 255; red += 51) {
            for (int green = 0; green <= 255; green += 51) {
                for (int blue = 0; blue <= 255; blue += 51)
                    backgrounds.emplace_back(red, green, blue);
            }
        }
        for (const QColor& background : backgrounds) {
            for (const Tint tint : allTints) {
                QVERIFY2(contrast(textColor(tint, background), background) >= textContrast,
                    qPrintable(background.name() + QString::number(static_cast<int>(tint))));
                QVERIFY2(
                    contrast(markColor(tint, background), background) >= markContrast, qPrintable(background.name()));
            }
            const QColor text = isDark(background) ? Qt::white : Qt::black;
            QVERIFY2(contrast(quietColor(text, background), background) >= textContrast, qPrintable(background.name()));
        }
    }

    void tintsKeepTheirColourOnTheUsualBackgrounds()
    {
        // The three axes are told apart by their hue.
        for (const QColor& background : {QColor(Qt::white), QColor(0xEF, 0xEF, 0xEF), QColor(0x23, 0x26, 0x29)}) {
            const QColor x = textColor(Tint::AxisX, background);
            const QColor y = textColor(Tint::AxisY, background);
            const QColor z = textColor(Tint::AxisZ, background);
            QVERIFY(x.red() > x.green() + 40 && x.red() > x.blue() + 40);
            QVERIFY(y.green() > y.red() + 40 && y.green() > y.blue() + 40);
            QVERIFY(z.blue() > z.red() + 40 && z.blue() > z.green() + 40);
        }
    }

    void textKeepsItsContrastOnAWash()
    {
        for (const QColor& background : {QColor(Qt::white), QColor(0xEF, 0xEF, 0xEF), QColor(0x23, 0x26, 0x29)}) {
            const QColor text = isDark(background) ? QColor(0xEF, 0xF0, 0xF1) : QColor(Qt::black);
            for (const Tint tint : allTints) {
                const QColor wash = washColor(tint, background);
                QVERIFY(wash != background);
                QVERIFY(contrast(text, wash) >= textContrast);
            }
        }
    }

    void aPaletteIsDarkIfItsTextIsLighter()
    {
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::white);
        palette.setColor(QPalette::WindowText, Qt::black);
        QVERIFY(!isDark(palette));
        palette.setColor(QPalette::Window, QColor(0x60, 0x60, 0x60));
        palette.setColor(QPalette::WindowText, Qt::white);
        QVERIFY(isDark(palette));
    }

    void theDocumentationHasTheseColours()
    {
        QFile page(QString::fromUtf8(ORVANE_SOURCES "/docs/look.md"));
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QColor light(Qt::white);
        const QColor dark(0x23, 0x26, 0x29);
        QStringList rows;
        for (const Tint tint : allTints) {
            const QColor onLight = textColor(tint, light);
            const QColor onDark = textColor(tint, dark);
            rows += QStringLiteral("| %1 | %2 | %3 | %4 |")
                        .arg(onLight.name())
                        .arg(contrast(onLight, light), 0, 'f', 1)
                        .arg(onDark.name())
                        .arg(contrast(onDark, dark), 0, 'f', 1);
        }
        QStringList documented;
        const QRegularExpression row(QStringLiteral("^\\| [^|]+ (\\| #[0-9a-f]{6} \\| .+ \\|) [^|]+ \\|$"));
        while (!page.atEnd()) {
            const auto match = row.match(QString::fromUtf8(page.readLine()).trimmed());
            if (match.hasMatch())
                documented += match.captured(1);
        }
        QCOMPARE(documented, rows);
    }

    void sizesFollowTheFont()
    {
        QFont font;
        font.setPixelSize(15);
        const QFontMetrics usual(font);
        font.setPixelSize(30);
        const QFontMetrics large(font);
        QVERIFY(unit(usual) >= 4 && unit(usual) <= 5);
        QVERIFY(iconSize(usual) >= 16 && iconSize(usual) <= 20);
        QVERIFY(unit(large) >= 2 * unit(usual) - 1);
        QCOMPARE(rowHeight(large), large.height() + 2 * unit(large));
        font.setPixelSize(1);
        QCOMPARE(unit(QFontMetrics(font)), 2);
    }

    void textsOfEmptyLinesAreReadable_data()
    {
        QTest::addColumn<QColor>("base");
        QTest::addColumn<QColor>("text");
        QTest::addColumn<bool>("isKept");
        QTest::newRow("black on black, as some desktops have it")
            << QColor(35, 38, 41) << QColor(239, 240, 241) << false;
        QTest::newRow("light") << QColor(Qt::white) << QColor(Qt::black) << true;
    }

    void textsOfEmptyLinesAreReadable()
    {
        QFETCH(QColor, base);
        QFETCH(QColor, text);
        QFETCH(bool, isKept);
        const QPalette before = QApplication::palette();
        const QColor placeholder(0, 0, 0, 128);
        QPalette palette;
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::Text, text);
        palette.setColor(QPalette::PlaceholderText, placeholder);
        QApplication::setPalette(palette);
        const ReadablePalette readable(qApp);
        QCOMPARE(QApplication::palette().color(QPalette::PlaceholderText) == placeholder, isKept);
        if (!isKept)
            QVERIFY(contrast(QApplication::palette().color(QPalette::PlaceholderText), base) >= textContrast);
        // A desktop that changes its palette is followed.
        QApplication::setPalette(palette);
        QTRY_COMPARE(QApplication::palette().color(QPalette::PlaceholderText) == placeholder, isKept);
        QApplication::setPalette(before);
    }

    void everyOtherRowIsReadable_data()
    {
        QTest::addColumn<QColor>("alternate");
        QTest::addColumn<bool>("isKept");
        QTest::newRow("white on a dark desktop, which doesn't name it") << QColor(Qt::white) << false;
        QTest::newRow("dark") << QColor(40, 44, 52) << true;
    }

    void everyOtherRowIsReadable()
    {
        QFETCH(QColor, alternate);
        QFETCH(bool, isKept);
        const QPalette before = QApplication::palette();
        const QColor base(27, 30, 32);
        const QColor text(239, 240, 241);
        QPalette palette;
        palette.setColor(QPalette::Base, base);
        palette.setColor(QPalette::Text, text);
        palette.setColor(QPalette::AlternateBase, alternate);
        palette.setColor(QPalette::PlaceholderText, text);
        QApplication::setPalette(palette);
        const ReadablePalette readable(qApp);
        const QColor mended = QApplication::palette().color(QPalette::AlternateBase);
        QCOMPARE(mended == alternate, isKept);
        QVERIFY(contrast(text, mended) >= textContrast);
        QVERIFY(mended != base);
        QApplication::setPalette(before);
    }
};

QTEST_MAIN(TestLook)

#include "tst_Look.moc"
