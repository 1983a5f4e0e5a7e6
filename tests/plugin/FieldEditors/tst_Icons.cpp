#include "FieldEditors/EditorIcons.h"

#include <QDir>
#include <QImage>
#include <QPixmap>
#include <QSet>
#include <QTest>

#include <utility>
#include <vector>

class TestIcons : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void consoleIconsAreCompiledIn_data()
    {
        QTest::addColumn<QString>("file");
        for (const char* const name : {"errors.png", "warnings.png", "infos.png", "clear.png", "save.png"})
            QTest::newRow(name) << QStringLiteral(":/console_icons/Icons/") + QLatin1String(name);
    }

    void consoleIconsAreCompiledIn()
    {
        QFETCH(const QString, file);
        const QImage image(file);
        QCOMPARE(image.size(), QSize(32, 32));
        QVERIFY(image.hasAlphaChannel());
        QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
        QCOMPARE(qAlpha(image.pixel(16, 24)), 255);
    }

    void consoleIconsAreAllThereIs()
    {
        const QStringList files = QDir(QStringLiteral(":/console_icons/Icons")).entryList(QDir::Files, QDir::Name);
        QCOMPARE(files,
            QStringList({QStringLiteral("clear.png"), QStringLiteral("errors.png"), QStringLiteral("infos.png"),
                QStringLiteral("save.png"), QStringLiteral("warnings.png")}));
    }

    void editorIconsAreSmallAndTransparent_data()
    {
        QTest::addColumn<QPixmap>("pixmap");
        for (const auto& [name, pixmap] : editorIcons())
            QTest::newRow(name) << pixmap;
    }

    void editorIconsAreSmallAndTransparent()
    {
        QFETCH(const QPixmap, pixmap);
        const QImage image = pixmap.toImage();
        QCOMPARE(image.size(), QSize(16, 16));
        QSet<QRgb> colours;
        int transparent = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) == 0)
                    ++transparent;
                else
                    colours.insert(image.pixel(x, y));
            }
        }
        QVERIFY(transparent > 60);
        QVERIFY(colours.size() > 20);
    }

    void editorIconsDiffer()
    {
        const auto icons = editorIcons();
        for (const auto& [name, pixmap] : icons) {
            for (const auto& [otherName, otherPixmap] : icons)
                QVERIFY2(name == otherName || pixmap.toImage() != otherPixmap.toImage(), name);
        }
    }

private:
    using NamedIcon = std::pair<const char*, QPixmap>;

    static std::vector<NamedIcon> editorIcons()
    {
        return {{"set to default", orvane::setDefaultIcon()}, {"ignore", orvane::ignoreIcon()},
            {"edit", orvane::editIcon()}, {"add a row", orvane::addRowIcon()},
            {"delete a row", orvane::deleteRowIcon()}, {"move up", orvane::moveUpIcon()},
            {"move down", orvane::moveDownIcon()}};
    }
};

QTEST_MAIN(TestIcons)
#include "tst_Icons.moc"
