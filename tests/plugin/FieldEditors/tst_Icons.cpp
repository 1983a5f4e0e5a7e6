#include "FieldEditors/EditorIcons.h"

#include <QDir>
#include <QImage>
#include <QPixmap>
#include <QSet>
#include <QTest>

class tst_Icons : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void consoleIconsAreCompiledIn_data();
    void consoleIconsAreCompiledIn();
    void consoleIconsAreAllThereIs();
    void editorIconsAreSmallAndTransparent_data();
    void editorIconsAreSmallAndTransparent();
    void editorIconsDiffer();
};

void tst_Icons::consoleIconsAreCompiledIn_data()
{
    QTest::addColumn<QString>("file");
    for (const char* const name : {"errors.png", "warnings.png", "infos.png", "clear.png", "save.png"})
        QTest::newRow(name) << QStringLiteral(":/console_icons/Icons/") + QLatin1String(name);
}

void tst_Icons::consoleIconsAreCompiledIn()
{
    QFETCH(const QString, file);
    const QImage image(file);
    QCOMPARE(image.size(), QSize(32, 32));
    QVERIFY(image.hasAlphaChannel());
    QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
    QCOMPARE(qAlpha(image.pixel(16, 24)), 255);
}

void tst_Icons::consoleIconsAreAllThereIs()
{
    const QStringList files = QDir(QStringLiteral(":/console_icons/Icons")).entryList(QDir::Files, QDir::Name);
    QCOMPARE(files,
        QStringList({QStringLiteral("clear.png"), QStringLiteral("errors.png"), QStringLiteral("infos.png"),
            QStringLiteral("save.png"), QStringLiteral("warnings.png")}));
}

void tst_Icons::editorIconsAreSmallAndTransparent_data()
{
    QTest::addColumn<QPixmap>("pixmap");
    QTest::newRow("set to default") << orvane::setDefaultIcon();
    QTest::newRow("ignore") << orvane::ignoreIcon();
    QTest::newRow("edit") << orvane::editIcon();
}

void tst_Icons::editorIconsAreSmallAndTransparent()
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

void tst_Icons::editorIconsDiffer()
{
    QVERIFY(orvane::setDefaultIcon().toImage() != orvane::ignoreIcon().toImage());
    QVERIFY(orvane::setDefaultIcon().toImage() != orvane::editIcon().toImage());
    QVERIFY(orvane::editIcon().toImage() != orvane::ignoreIcon().toImage());
}

QTEST_MAIN(tst_Icons)
#include "tst_Icons.moc"
