#include "app/manners/MannersCase.h"

#include "orvane/app/look/Look.h"
#include "orvane/app/look/Theme.h"
#include "orvane/app/manners/ConsoleGround.h"

#include <QFile>
#include <QImage>
#include <QTextBlock>
#include <QTextEdit>

#include <algorithm>
#include <array>
#include <iostream>

using orvane::look::contrast;

/// The console of the real plug-in is readable in each theme.
class TestConsoleGround : public MannersCase {
    Q_OBJECT

private:
    static constexpr std::array colors{Qt::darkRed, Qt::darkGreen, Qt::darkYellow};

    static double leastContrast(const QColor& ground)
    {
        double least = 21;
        for (const Qt::GlobalColor color : colors)
            least = std::min(least, contrast(color, ground));
        return least;
    }

    [[nodiscard]] QTextEdit* console() const
    {
        return m_window->findChild<QTextEdit*>(QStringLiteral("m_consoleOutput"));
    }

private Q_SLOTS:
    void cleanup()
    {
        endWithGallery();
        QApplication::setPalette(QPalette());
    }

    /// The painted pixels: each colour of a text on the background around it.
    void eachTextIsReadable_data()
    {
        QTest::addColumn<Theme::Choice>("theme");
        QTest::newRow("light") << Theme::Choice::Light;
        QTest::newRow("dark") << Theme::Choice::Dark;
    }
    void eachTextIsReadable()
    {
        QFETCH(const Theme::Choice, theme);
        startWithGallery();
        m_window->findChild<Theme*>()->choose(theme);
        QTRY_VERIFY(console() != nullptr && console()->isVisible());
        std::cerr << "an error" << std::endl;
        std::cout << "an information" << std::endl;
        settle();
        const QColor ground = console()->viewport()->grab().toImage().pixelColor(1, 1);
        QCOMPARE(ground, ConsoleGround::ground());
        QCOMPARE(console()->viewport()->palette().color(QPalette::Text), ConsoleGround::ink());
        int texts = 0;
        for (QTextBlock block = console()->document()->begin(); block.isValid(); block = block.next()) {
            for (auto part = block.begin(); !part.atEnd(); ++part, ++texts)
                QVERIFY(contrast(part.fragment().charFormat().foreground().color(), ground)
                    >= ConsoleGround::leastContrast);
        }
        QVERIFY(texts >= 2);
    }

    /// A search through all backgrounds shows that no other one would do for a dark theme.
    void onlyLightBackgroundsAreReadable()
    {
        startWithGallery();
        QVERIFY(leastContrast(ConsoleGround::ground()) >= ConsoleGround::leastContrast);
        double best = 0;
        QColor bestGround;
        double darkest = 1; // of the lightness of backgrounds with enough contrast
        for (int red = 0; red <= 255; red += 5) {
            for (int green = 0; green <= 255; green += 5) {
                for (int blue = 0; blue <= 255; blue += 5) {
                    const QColor ground(red, green, blue);
                    const double least = leastContrast(ground);
                    if (least > best) {
                        best = least;
                        bestGround = ground;
                    }
                    if (least >= ConsoleGround::leastContrast)
                        darkest = std::min(darkest, static_cast<double>(ground.lightnessF()));
                }
            }
        }
        QCOMPARE(bestGround, QColor(Qt::white));
        QVERIFY2(best > 4.1 && best < orvane::look::textContrast, qPrintable(QString::number(best)));
        QVERIFY2(darkest > 0.8, qPrintable(QString::number(darkest)));
    }

    void theDocumentationHasTheFigures()
    {
        startWithGallery();
        QFile page(QString::fromUtf8(ORVANE_SOURCES "/docs/look.md"));
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(page.readAll()).simplified();
        QStringList figures;
        for (const Qt::GlobalColor color : colors)
            figures += QString::number(contrast(color, ConsoleGround::ground()), 'f', 1);
        const QString sentence
            = QStringLiteral("%1, where errors have a contrast of %2, information %3 and warnings %4")
                  .arg(ConsoleGround::ground().name(), figures[0], figures[1], figures[2]);
        QVERIFY2(text.contains(sentence), qPrintable(sentence));
    }
};

QTEST_MAIN(TestConsoleGround)
#include "tst_ConsoleGround.moc"
