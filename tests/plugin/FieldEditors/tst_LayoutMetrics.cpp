#include "FieldEditors/LayoutMetrics.h"

#include <QHBoxLayout>
#include <QTest>
#include <QWidget>

/// How metrics are found. The values are tested where editors show them, in the layout tests of the editors.
class TestLayoutMetrics : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // No editor shows these.
    void unusedMetricsHaveTheirValue_data()
    {
        QTest::addColumn<int>("value");
        QTest::newRow("labelHeight") << 20;
        QTest::newRow("MFTableMinHeightWin") << 43;
    }

    void unusedMetricsHaveTheirValue()
    {
        QFETCH(const int, value);
        QCOMPARE(getLayoutMetric(QString::fromLatin1(QTest::currentDataTag())), value);
    }

    void aMetricHasTheSameValueEachTime()
    {
        const QString width = QStringLiteral("PopupFrameWidth");
        const QString height = QStringLiteral("PopupFrameHeight");
        for (int time = 0; time < 3; ++time) {
            QCOMPARE(getLayoutMetric(width), 260);
            QCOMPARE(getLayoutMetric(height), 100);
        }
    }

    void unknownNamesGiveZero_data()
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

    void unknownNamesGiveZero()
    {
        QFETCH(const QString, name);
        QCOMPARE(getLayoutMetric(name), 0);
        QCOMPARE(getLayoutMetric(name), 0);
    }

    void aLayoutGetsItsMarginOnAllSidesAndItsSpacing()
    {
        QWidget widget;
        auto* const layout = new QHBoxLayout(&widget);
        setLayoutMetrics(layout, QStringLiteral("PopupLayoutMargin"), QStringLiteral("PopupLayoutSpacing"));
        QCOMPARE(layout->contentsMargins(), QMargins(6, 6, 6, 6));
        QCOMPARE(layout->spacing(), 8);
        setLayoutMetrics(layout, QStringLiteral("SFColorMargin"), QStringLiteral("SFColorRGBAInterSpacing"));
        QCOMPARE(layout->contentsMargins(), QMargins());
        QCOMPARE(layout->spacing(), 0);
    }
};

QTEST_MAIN(TestLayoutMetrics)
#include "tst_LayoutMetrics.moc"
