#include "app/WindowCase.h"

#include "orvane/app/look/Look.h"
#include "orvane/app/look/Symbols.h"
#include "orvane/app/look/ThemePalette.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QToolBar>

#include <cmath>

using orvane::look::contrast;

/// The icons that the tool has drawn for itself: in one style, sharp, and in the colour of texts.
class TestSymbols : public WindowCase {
    Q_OBJECT

private:
    static constexpr const char* folder = ORVANE_SOURCES "/orvane/app/icons/symbols";

    static QStringList names()
    {
        QStringList names;
        const QFileInfoList files
            = QDir(QString::fromUtf8(folder)).entryInfoList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name);
        for (const QFileInfo& file : files)
            names += file.baseName();
        return names;
    }

    static QString textOf(const QString& fileName)
    {
        QFile file(fileName);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    /// The colour of the pixel that is covered most.
    static QColor inkOf(const QImage& image)
    {
        QColor ink(Qt::transparent);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y).alpha() > ink.alpha())
                    ink = image.pixelColor(x, y);
            }
        }
        return ink;
    }

private Q_SLOTS:
    void cleanup() { QApplication::setPalette(QPalette()); }

    void allAreInOneStyle_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString& name : names())
            QTest::newRow(qPrintable(name)) << name;
    }
    void allAreInOneStyle()
    {
        QFETCH(const QString, name);
        const QString text = textOf(QString::fromUtf8(folder) + u'/' + name + QStringLiteral(".svg"));
        QVERIFY(text.startsWith(QStringLiteral(
            R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 16 16" fill="none" stroke="currentColor" )"
            R"(stroke-width="1.5" stroke-linecap="round" stroke-linejoin="round">)")));
        // No colour, width or transformation of their own.
        QVERIFY(!text.mid(text.indexOf(u'>'))
                     .contains(QRegularExpression(
                         QStringLiteral("#|rgb|fill=|stroke|style|transform|opacity|<image|<text"))));
        QVERIFY(QSvgRenderer(QStringLiteral(":/orvane/symbols/%1.svg").arg(name)).isValid()
            || !orvane::look::symbol(name).isNull());
        QSvgRenderer drawing(text.toUtf8());
        QVERIFY(drawing.isValid());
        // Nothing is cut off at the edges: drawn with a margin around the square it is the same.
        constexpr int scale = 8;
        QImage image(20 * scale, 20 * scale, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        drawing.render(&painter, QRectF(2 * scale, 2 * scale, 16 * scale, 16 * scale));
        painter.end();
        int painted = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const bool isInside = x >= 2 * scale && x < 18 * scale && y >= 2 * scale && y < 18 * scale;
                QVERIFY(isInside || image.pixelColor(x, y).alpha() == 0);
                painted += image.pixelColor(x, y).alpha() > 0 ? 1 : 0;
            }
        }
        QVERIFY(painted > 10 * scale);
    }

    void eachIsInTheProgramAndUsed()
    {
        QString sources;
        QDirIterator files(QString::fromUtf8(ORVANE_SOURCES "/orvane/app"), {QStringLiteral("*.cpp")}, QDir::Files,
            QDirIterator::Subdirectories);
        while (files.hasNext())
            sources += textOf(files.next());
        const QString resources = textOf(QString::fromUtf8(ORVANE_SOURCES "/orvane/app/symbols.qrc"));
        QVERIFY(names().size() > 50);
        for (const QString& name : names()) {
            QVERIFY2(
                resources.contains(QStringLiteral("\"%1.svg\">icons/symbols/%1.svg<").arg(name)), qPrintable(name));
            QVERIFY2(sources.contains(u'"' + name + u'"'), qPrintable(name));
        }
        QCOMPARE(resources.count(QStringLiteral("<file")), names().size());
    }

    void theyHaveTheColourOfTexts_data()
    {
        QTest::addColumn<QPalette>("palette");
        QTest::newRow("light") << orvane::look::lightPalette();
        QTest::newRow("dark") << orvane::look::darkPalette();
    }
    void theyHaveTheColourOfTexts()
    {
        QFETCH(const QPalette, palette);
        const QIcon icon = orvane::look::symbol(QStringLiteral("undo"));
        icon.pixmap(32); // with the palette before
        QApplication::setPalette(palette);
        const QColor ink = inkOf(icon.pixmap(64).toImage());
        QCOMPARE(ink.rgb(), palette.color(QPalette::ButtonText).rgb());
        QVERIFY(contrast(ink, palette.color(QPalette::Highlight)) >= orvane::look::markContrast); // in a menu
        const QColor disabled = inkOf(icon.pixmap(64, QIcon::Disabled).toImage());
        QCOMPARE(disabled.rgb(), palette.color(QPalette::Disabled, QPalette::ButtonText).rgb());
        const QColor warning
            = inkOf(orvane::look::symbol(QStringLiteral("warning"), orvane::look::Tint::Warning).pixmap(64).toImage());
        QVERIFY(contrast(warning, palette.color(QPalette::Base)) >= orvane::look::markContrast);
    }

    /// Drawn for the pixels of the screen, not enlarged from fewer.
    void theyAreSharpAtEachScale()
    {
        for (const double scale : {1.0, 1.5, 2.0, 3.0}) {
            const QPixmap pixmap = orvane::look::symbol(QStringLiteral("close")).pixmap(QSize(16, 16), scale);
            QCOMPARE(pixmap.size(), QSize(16, 16) * scale);
            QCOMPARE(pixmap.devicePixelRatio(), scale);
            // A line of 1.5 units has few pixels that are partly covered: those of its edges.
            const QImage image = pixmap.toImage();
            int partly = 0;
            int fully = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const int alpha = image.pixelColor(x, y).alpha();
                    partly += alpha > 0 && alpha < 255 ? 1 : 0;
                    fully += alpha == 255 ? 1 : 0;
                }
            }
            const double length = 2 * std::sqrt(2.0) * 8 * scale; // of both lines, in pixels
            QVERIFY2(partly <= 5 * length, qPrintable(QStringLiteral("%1: %2 %3").arg(scale).arg(partly).arg(fully)));
            QVERIFY(fully > 0);
        }
    }

    void allButtonsOfTheToolBarsHaveOne()
    {
        startTool();
        for (const QToolBar* const bar : m_window->findChildren<QToolBar*>()) {
            for (const QAction* const action : bar->actions()) {
                if (!action->isSeparator() && action->objectName().contains(u'.'))
                    QVERIFY2(!action->icon().isNull(), qPrintable(action->objectName()));
            }
        }
        for (const char* const name : {"edit.undo", "node.delete", "view.frameAll", "file.open", "go.to", "help.about"})
            QVERIFY2(!m_window->findChild<QAction*>(QLatin1String(name))->icon().isNull(), name);
        for (const char* const name : {"sceneDock", "fieldsDock", "historyDock", "problemsDock", "listDock"})
            QVERIFY2(!m_window->findChild<QWidget*>(QLatin1String(name))->windowIcon().isNull(), name);
        endTool();
    }
};

QTEST_MAIN(TestSymbols)
#include "tst_Symbols.moc"
