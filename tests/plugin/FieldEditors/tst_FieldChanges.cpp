#include "FieldEditors/FieldChanges.h"
#include "plugin/ToolHarness.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/nodes/NxNode.h"

#include <memory>

/// A node that counts its instances.
class CountedNode : public NxNode {
    NX_NODE(CountedNode)

public:
    CountedNode() { ++count; }
    ~CountedNode() override { --count; }

    NxSFFloat amount{this, "amount", 1};
    inline static int count = 0;
};

NX_NODE_SOURCE(CountedNode, NxNode, "Counted")

class TestFieldChanges : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_tool = std::make_unique<ToolHarness>(); }
    void cleanup() { m_tool.reset(); }

    void pushedValueCannotBeUndone()
    {
        NxSFFloat& field = m_tool->node->sfFloat;
        field.setValue(2);
        orvane::pushSetValueCommand(&field);
        QCOMPARE(m_tool->services.pushed, 1);
        m_tool->services.undo();
        QCOMPARE(field.getValue(), 2.0F);
    }

    void snapshotCanBeUndone()
    {
        NxSFFloat& field = m_tool->node->sfFloat;
        VbString snapshot("1");
        field.setValue(2);
        orvane::pushSetValueCommand(&field, snapshot);
        QVERIFY(snapshot.isNull());
        m_tool->services.undo();
        QCOMPARE(field.getValue(), 1.0F);
        m_tool->services.redo();
        QCOMPARE(field.getValue(), 2.0F);
    }

    void ignoredFlagCanBeUndone()
    {
        NxField& field = m_tool->node->mfFloat;
        orvane::setFieldIgnored(&field, true);
        QVERIFY(field.isIgnored());
        QCOMPARE(m_tool->services.pushed, 1);
        m_tool->services.undo();
        QVERIFY(!field.isIgnored());
    }

    void defaultComesFromANewInstance_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("number") << QByteArray("sfFloat") << QByteArray("17.5");
        QTest::newRow("text") << QByteArray("sfString") << QByteArray("\"changed\"");
        QTest::newRow("enumeration") << QByteArray("sfEnum") << QByteArray("HIGH");
        QTest::newRow("matrix") << QByteArray("sfMatrix") << QByteArray("1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16");
        QTest::newRow("numbers") << QByteArray("mfFloat") << QByteArray("[1, 2, 3]");
        QTest::newRow("texts") << QByteArray("mfString") << QByteArray("[\"a\", \"b\"]");
    }

    void defaultComesFromANewInstance()
    {
        QFETCH(const QByteArray, name);
        QFETCH(const QByteArray, text);
        NxField* const field = m_tool->node->getField(VbName(name.constData()));
        QVERIFY(field != nullptr);
        QVERIFY(field->set(text.constData()));
        QVERIFY(!field->isDefault());
        orvane::setDefaultFieldValue(field);
        QVERIFY(field->isDefault());
        QCOMPARE(m_tool->services.pushed, 1);
        m_tool->services.undo();
        QVERIFY(field->isDefault());
    }

    void eachDefaultLeavesAnInstanceBehind()
    {
        const NxRef<CountedNode> node(new CountedNode);
        node->amount.setValue(2);
        QVERIFY(!node->amount.isDefault()); // which makes the instance that knows the defaults
        const int before = CountedNode::count;
        orvane::setDefaultFieldValue(&node->amount);
        QCOMPARE(node->amount.getValue(), 1.0F);
        QCOMPARE(CountedNode::count, before + 1);
        orvane::setDefaultFieldValue(&node->amount);
        QCOMPARE(CountedNode::count, before + 2);
    }

    void nothingHappensWithoutAField()
    {
        orvane::setFieldIgnored(nullptr, true);
        orvane::setDefaultFieldValue(nullptr);
        QCOMPARE(m_tool->services.pushed, 0);
    }

    void nothingHappensWithoutAContainer()
    {
        NxSFFloat field(nullptr, nullptr);
        field.setValue(2);
        orvane::setDefaultFieldValue(&field);
        QCOMPARE(field.getValue(), 2.0F);
        QCOMPARE(m_tool->services.pushed, 0);
    }

private:
    std::unique_ptr<ToolHarness> m_tool;
};

QTEST_MAIN(TestFieldChanges)
#include "tst_FieldChanges.moc"
