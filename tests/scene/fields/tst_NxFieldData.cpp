#include "scene/TestNodes.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxFieldData.h"

#include <QTest>

#include <new>

namespace {

// A class whose constructor fails on demand, after it has made its fields.
class FailingNode : public ProbeNode {
public:
    FailingNode()
    {
        if (fails)
            throw std::bad_alloc();
    }

    static inline bool fails = true;
    NxSFFloat extra{this, "extra"};
};

NxFieldContainer* makeFailingNode()
{
    return new FailingNode;
}

NxFieldContainer* makeAnotherNodeFirst()
{
    const NxRef<ProbeNode> another(new ProbeNode);
    { // its place may be the instance's
        const NxRef<ExtendedProbeNode> gone(new ExtendedProbeNode);
    }
    return new ExtendedProbeNode;
}

} // namespace

class TestNxFieldData : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aClassHasOneDescription()
    {
        const NxRef<ProbeNode> first(new ProbeNode);
        const NxRef<ProbeNode> second(new ProbeNode);
        const NxRef<ProbeNode> derived(new ExtendedProbeNode);
        QVERIFY(first->getFieldData() == second->getFieldData());
        QVERIFY(first->getFieldData() != derived->getFieldData());
    }

    void fieldsOfBaseClassesComeFirst()
    {
        const NxRef<ExtendedProbeNode> node(new ExtendedProbeNode);
        const NxFieldData* const data = node->getFieldData();
        const char* const names[]{"size", "title", "weights", "depth", "last"};
        QCOMPARE(data->getNumFields(), 5);
        for (int i = 0; i < 5; ++i) {
            QVERIFY(data->getFieldName(i) == VbName(names[i]));
            QCOMPARE(data->getIndex(VbName(names[i])), i);
            QCOMPARE(data->getIndex(node.get(), data->getField(node.get(), i)), i);
        }
        QVERIFY(data->getField(node.get(), 3) == &node->depth);
    }

    void anotherNodeMadeMeanwhileAddsNoFields()
    {
        const NxRef<ExtendedProbeNode> node(new ExtendedProbeNode);
        QCOMPARE(node->getFieldData()->getNumFields(), 5);
        QCOMPARE(node->inner->getFieldData()->getNumFields(), 3);
        // Neither do fields without a container or with another one.
        NxSFFloat lone(node.get(), "late");
        QCOMPARE(node->getFieldData()->getNumFields(), 5);
        QCOMPARE(node->getFieldData()->getIndex(VbName("late")), -1);
    }

    void anotherNodeMadeAheadAddsNoFields()
    {
        const NxFieldData data(&makeAnotherNodeFirst);
        QCOMPARE(data.getNumFields(), 5);
        QVERIFY(data.getFieldName(4) == VbName("last"));
    }

    void aConstructorThatThrowsLeavesNothingBehind()
    {
        FailingNode::fails = true;
        QVERIFY_THROWS_EXCEPTION(std::bad_alloc, [[maybe_unused]] const NxFieldData failed(&makeFailingNode));
        // Nobody collects any more.
        const NxRef<ProbeNode> node(new ProbeNode);
        FailingNode::fails = false;
        const NxFieldData data(&makeFailingNode);
        QCOMPARE(data.getNumFields(), 4);
        QVERIFY(data.getFieldName(3) == VbName("extra"));
    }

    void theSameIndexGivesTheOtherInstancesField()
    {
        const NxRef<ProbeNode> first(new ProbeNode);
        const NxRef<ProbeNode> second(new ProbeNode);
        const NxFieldData* const data = first->getFieldData();
        QVERIFY(data->getField(second.get(), data->getIndex(first.get(), &first->weights)) == &second->weights);
        QVERIFY(data->getField(second.get(), data->getIndex(first.get(), &first->title)) == &second->title);
    }

    void unknownFieldsAndIndicesGiveNothing()
    {
        const NxRef<ProbeNode> node(new ProbeNode);
        const NxRef<ProbeNode> other(new ProbeNode);
        const NxFieldData* const data = node->getFieldData();
        QCOMPARE(data->getIndex(node.get(), &other->size), -1);
        QCOMPARE(data->getIndex(node.get(), nullptr), -1);
        QCOMPARE(data->getIndex(nullptr, &node->size), -1);
        QCOMPARE(data->getIndex(VbName("none")), -1);
        for (const int index : {-1, 3, 1000}) {
            QVERIFY(data->getField(node.get(), index) == nullptr);
            QVERIFY(data->getFieldName(index).isEmpty());
            QVERIFY(data->getDefault(index) == nullptr);
        }
        QVERIFY(data->getField(nullptr, 0) == nullptr);
    }

    void theDefaultsAreThoseOfANewNode()
    {
        const NxRef<ProbeNode> node(new ProbeNode);
        const NxFieldData* const data = node->getFieldData();
        const char* const defaults[]{"1.5", "\"untitled\"", "[1, 2, 3]"};
        for (int i = 0; i < 3; ++i) {
            VbString text;
            data->getDefault(i)->get(text);
            QVERIFY(text == VbString(defaults[i]));
            QVERIFY(data->getField(node.get(), i)->isSame(*data->getDefault(i)));
        }
    }

    void changingAnInstanceLeavesTheDefaults()
    {
        const NxRef<ProbeNode> node(new ProbeNode);
        node->size.setValue(2);
        QVERIFY(!node->size.isDefault());
        QVERIFY(node->title.isDefault());
        node->size.setValue(1.5F);
        QVERIFY(node->size.isDefault());
    }
};

QTEST_APPLESS_MAIN(TestNxFieldData)
#include "tst_NxFieldData.moc"
