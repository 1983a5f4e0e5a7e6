#include "FieldEditors/LayoutMetrics.h"

#include <QTest>

class tst_LayoutMetrics : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyMetricHasItsValue_data();
    void everyMetricHasItsValue();
    void unknownNamesGiveZero_data();
    void unknownNamesGiveZero();
};

void tst_LayoutMetrics::everyMetricHasItsValue_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("frameLineWidth") << 0;
    QTest::newRow("labelLineWidth") << 0;
    QTest::newRow("labelPointSize") << 10;
    QTest::newRow("labelHeight") << 20;
    QTest::newRow("buttonWidth") << 20;
    QTest::newRow("buttonHeight") << 20;
    QTest::newRow("PopupFrameWidth") << 260;
    QTest::newRow("PopupFrameHeight") << 100;
    QTest::newRow("PopupLayoutMargin") << 6;
    QTest::newRow("PopupLayoutSpacing") << 8;
    QTest::newRow("SFieldLayoutMargin") << 4;
    QTest::newRow("SFieldLayoutSpacing") << 6;
    QTest::newRow("SFieldEditLayoutMargin") << 0;
    QTest::newRow("SFieldEditLayoutSpacing") << 0;
    QTest::newRow("SFButtonLayoutMargin") << 2;
    QTest::newRow("SFButtonLayoutSpacing") << 0;
    QTest::newRow("SFEditionAreaLayMargin") << 0;
    QTest::newRow("SFEditionAreaLaySpacing") << 2;
    QTest::newRow("SFComponentHeight") << 18;
    QTest::newRow("SFBoolWidth") << 16;
    QTest::newRow("SFColorSpacing") << 6;
    QTest::newRow("SFColorMargin") << 0;
    QTest::newRow("SFColorInterSpacing") << 2;
    QTest::newRow("SFColorDispWidth") << 20;
    QTest::newRow("SFVecLineHeight") << 16;
    QTest::newRow("SFVecLabelHeight") << 14;
    QTest::newRow("SF4fBoxVSpacing") << 4;
    QTest::newRow("SF4fBoxHSpacing") << 4;
    QTest::newRow("SF4fBoxHMargin") << 2;
    QTest::newRow("SF3fBoxVSpacing") << 4;
    QTest::newRow("SF3fBoxHSpacing") << 20;
    QTest::newRow("SF3fBoxHMargin") << 2;
    QTest::newRow("SF2BoxHSpacing") << 25;
    QTest::newRow("SF2BoxHMargin") << 2;
    QTest::newRow("SF2BoxVSpacing") << 4;
    QTest::newRow("MFGlobalLayoutSpacing") << 2;
    QTest::newRow("MFGlobalLayoutMarging") << 6;
    QTest::newRow("MFGlobalButtonsLayoutMargin") << 0;
    QTest::newRow("MFGlobalButtonsLayoutSpacing") << 5;
    QTest::newRow("MFButtonLayoutMargin") << 0;
    QTest::newRow("MFButtonLayoutSpacing") << 0;
    QTest::newRow("MFAccessWidth") << 60;
    QTest::newRow("MFManageAccessSpacerWidth") << 0;
    QTest::newRow("MFManageAccessSpacerHeight") << 0;
    QTest::newRow("MFAccessMoveSpacerHeight") << 0;
    QTest::newRow("MFAccessMoveSpacerWidth") << 0;
    QTest::newRow("MFTableMinHeightWin") << 43;
    QTest::newRow("MFTableMinHeightUnix") << 46;
}

void tst_LayoutMetrics::everyMetricHasItsValue()
{
    QFETCH(const int, value);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    QCOMPARE(getLayoutMetric(name), value);
    QCOMPARE(getLayoutMetric(name), value); // now from the cache
}

void tst_LayoutMetrics::unknownNamesGiveZero_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("the misspelt one spelt right") << QStringLiteral("MFGlobalLayoutMargin");
    QTest::newRow("other case") << QStringLiteral("labelpointsize");
    QTest::newRow("other case of the first row") << QStringLiteral("framelinewidth");
    QTest::newRow("asked for by the colour editor") << QStringLiteral("SFColorRGBAInterSpacing");
    QTest::newRow("a part of a name") << QStringLiteral("MFAccess");
    QTest::newRow("longer than a name") << QStringLiteral("MFAccessWidthX");
    QTest::newRow("blanks around a name") << QStringLiteral(" MFAccessWidth ");
    QTest::newRow("beyond Latin-1") << QStringLiteral("\u4e2d");
}

void tst_LayoutMetrics::unknownNamesGiveZero()
{
    QFETCH(const QString, name);
    QCOMPARE(getLayoutMetric(name), 0);
    QCOMPARE(getLayoutMetric(name), 0);
}

QTEST_APPLESS_MAIN(tst_LayoutMetrics)
#include "tst_LayoutMetrics.moc"
