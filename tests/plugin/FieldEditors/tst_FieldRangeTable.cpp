#include "FieldEditors/FieldRangeTable.h"

#include "meridane/base/types/NxType.h"
#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/nodes/NxNode.h"

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
    // The table is a list of texts, which nothing else ties to the classes of nodes.
    void floatFieldsOfTheseNodesHaveARangeThatHoldsTheirDefault()
    {
        QStringList found;
        for (const NxType type : NxType::getAllDerivedFrom(NxNode::getClassTypeId())) {
            if (!type.canCreateInstance())
                continue;
            const NxRef<NxNode> node(static_cast<NxNode*>(static_cast<NxTypedObject*>(type.createInstance(nullptr))));
            for (const NxField* const field : node->getFields()) {
                const QByteArray name(node->getFieldName(field).getString());
                const FieldRange range = FieldRangeTable::lookup(node->getClassName(), name.constData());
                if (!range.bounded)
                    continue;
                found += QString::fromLatin1(node->getClassName() + QByteArray(".") + name);
                const auto* const number = dynamic_cast<const NxSFFloat*>(field);
                QVERIFY2(number != nullptr, qPrintable(found.back()));
                QVERIFY2(number->getValue() >= range.floatMin && number->getValue() <= range.floatMax,
                    qPrintable(found.back()));
                compare(range, {.floatMax = 1, .bounded = true});
            }
        }
        found.sort();
        QCOMPARE(found.join(u' '),
            QStringLiteral("Complexity.textureQuality Complexity.value DirectionalLight.intensity "
                           "Material.transparency"));
    }

    void otherNodesHaveAnUnboundedRangeForEachKindOfNumber()
    {
        compare(FieldRangeTable::lookup("DefaultNode", "floatField"), {.floatMax = 10});
        compare(FieldRangeTable::lookup("DefaultNode", "doubleField"), {.doubleMax = 10});
        compare(FieldRangeTable::lookup("DefaultNode", "intField"), {.intMax = 100});
    }

    void unknownPairGivesTheZeroRecord_data()
    {
        QTest::addColumn<QByteArray>("node");
        QTest::addColumn<QByteArray>("field");
        QTest::newRow("unknown node") << QByteArray("Group") << QByteArray("value");
        QTest::newRow("unknown field") << QByteArray("Complexity") << QByteArray("type");
        QTest::newRow("other case") << QByteArray("complexity") << QByteArray("value");
        QTest::newRow("empty names") << QByteArray("") << QByteArray("");
        QTest::newRow("before the first row") << QByteArray("A") << QByteArray("");
        QTest::newRow("behind the last row") << QByteArray("Z") << QByteArray("");
        QTest::newRow("between two rows") << QByteArray("Complexity") << QByteArray("u");
        QTest::newRow("a row without its end") << QByteArray("Material") << QByteArray("transparenc");
        QTest::newRow("a row and more") << QByteArray("Material") << QByteArray("transparencyX");
    }

    void unknownPairGivesTheZeroRecord()
    {
        QFETCH(QByteArray, node);
        QFETCH(QByteArray, field);
        compare(FieldRangeTable::lookup(node.constData(), field.constData()), FieldRange());
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
        QCOMPARE(FieldRangeTable::lookup(node.constData(), field.constData()).intMax, 100);
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
