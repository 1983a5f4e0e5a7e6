#include "FieldEditors/FieldRangeTable.h"

#include <QTest>

namespace {

void compare(const FieldRange& range, const FieldRange& expected)
{
    QCOMPARE(range.floatMin, expected.floatMin);
    QCOMPARE(range.floatMax, expected.floatMax);
    QCOMPARE(range.doubleMin, expected.doubleMin);
    QCOMPARE(range.doubleMax, expected.doubleMax);
    QCOMPARE(range.intMin, expected.intMin);
    QCOMPARE(range.intMax, expected.intMax);
    QCOMPARE(range.bounded, expected.bounded);
}

} // namespace

class TestFieldRangeTable : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyRowFillsTheBoundsOfItsOwnTypeOnly_data()
    {
        QTest::addColumn<QByteArray>("node");
        QTest::addColumn<QByteArray>("field");
        QTest::addColumn<float>("floatMax");
        QTest::addColumn<float>("doubleMax");
        QTest::addColumn<int>("intMax");
        QTest::addColumn<bool>("bounded");
        const auto row
            = [](const char* node, const char* field, float floatMax, float doubleMax, int intMax, bool bounded) {
                  QTest::addRow("%s %s", node, field)
                      << QByteArray(node) << QByteArray(field) << floatMax << doubleMax << intMax << bounded;
              };
        row("DefaultNode", "floatField", 10, 0, 0, false);
        row("DefaultNode", "doubleField", 0, 10, 0, false);
        row("DefaultNode", "intField", 0, 0, 100, false);
        row("Complexity", "value", 1, 0, 0, true);
        row("Complexity", "textureQuality", 1, 0, 0, true);
        row("DirectionalLight", "intensity", 1, 0, 0, true);
        row("Material", "transparency", 1, 0, 0, true);
    }

    void everyRowFillsTheBoundsOfItsOwnTypeOnly()
    {
        QFETCH(QByteArray, node);
        QFETCH(QByteArray, field);
        QFETCH(float, floatMax);
        QFETCH(float, doubleMax);
        QFETCH(int, intMax);
        QFETCH(bool, bounded);
        FieldRange expected;
        expected.floatMax = floatMax;
        expected.doubleMax = doubleMax;
        expected.intMax = intMax;
        expected.bounded = bounded;
        compare(FieldRangeTable().lookup(node.constData(), field.constData()), expected);
    }

    void unknownPairGivesTheZeroRecord_data()
    {
        QTest::addColumn<QByteArray>("node");
        QTest::addColumn<QByteArray>("field");
        QTest::newRow("unknown node") << QByteArray("Group") << QByteArray("value");
        QTest::newRow("unknown field") << QByteArray("Complexity") << QByteArray("type");
        QTest::newRow("other case") << QByteArray("complexity") << QByteArray("value");
        QTest::newRow("empty names") << QByteArray("") << QByteArray("");
    }

    void unknownPairGivesTheZeroRecord()
    {
        QFETCH(QByteArray, node);
        QFETCH(QByteArray, field);
        compare(FieldRangeTable().lookup(node.constData(), field.constData()), FieldRange());
    }

    void namesRunTogetherFindTheRow_data()
    {
        QTest::addColumn<QByteArray>("node");
        QTest::addColumn<QByteArray>("field");
        QTest::newRow("cut elsewhere") << QByteArray("Default") << QByteArray("NodeintField");
        QTest::newRow("all in the node") << QByteArray("DefaultNodeintField") << QByteArray("");
        QTest::newRow("all in the field") << QByteArray("") << QByteArray("DefaultNodeintField");
    }

    void namesRunTogetherFindTheRow()
    {
        QFETCH(QByteArray, node);
        QFETCH(QByteArray, field);
        QCOMPARE(FieldRangeTable().lookup(node.constData(), field.constData()).intMax, 100);
    }

    void radixFollowsFromLengthAndPrefix_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("radix");
        const auto row = [](const char* text, int radix) {
            QTest::addRow("text \"%s\"", text) << QString::fromLatin1(text) << radix;
        };
        row("", 10);
        row("0", 10);
        row("7", 10);
        row("07", 8);
        row("0x", 8);
        row("08", 8);
        row("10", 10);
        row("-5", 10);
        row("007", 10);
        row("0x1", 16);
        row("0x1f", 16);
        row("0X1f", 10);
        row("x01", 10);
        row("123", 10);
    }

    void radixFollowsFromLengthAndPrefix()
    {
        QFETCH(QString, text);
        QFETCH(int, radix);
        QCOMPARE(FieldRangeTable::detectRadix(text), radix);
    }
};

QTEST_APPLESS_MAIN(TestFieldRangeTable)
#include "tst_FieldRangeTable.moc"
