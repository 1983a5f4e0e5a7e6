#include "scene/TestNodes.h"

#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbString.h"

#include <QTest>

namespace {

// Tells when it dies.
class MortalNode final : public ProbeNode {
public:
    explicit MortalNode(bool& dead)
        : m_dead(dead)
    {
    }

protected:
    ~MortalNode() override { m_dead = true; }

private:
    bool& m_dead;
};

} // namespace

class TestNxFieldContainer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theLastReferenceDeletes()
    {
        bool dead = false;
        const auto* const node = new MortalNode(dead);
        node->ref();
        node->ref();
        QCOMPARE(node->getRefCount(), 2);
        node->unref();
        QVERIFY(!dead);
        node->unref();
        QVERIFY(dead);
    }

    void aNewNodeHasNeitherNameNorReference()
    {
        const auto* const node = new ProbeNode;
        QCOMPARE(node->getRefCount(), 0);
        QVERIFY(node->getName().isEmpty());
        node->ref();
        node->unref();
    }

    void fieldsAreFoundByName()
    {
        const NxRef<ExtendedProbeNode> node(new ExtendedProbeNode);
        QVERIFY(node->getField("size") == &node->size);
        QVERIFY(node->getField("last") == &node->last);
        QVERIFY(node->getField("Size") == nullptr);
        QVERIFY(node->getField("") == nullptr);
    }

    void aFieldTellsItsName()
    {
        const NxRef<ExtendedProbeNode> node(new ExtendedProbeNode);
        QVERIFY(node->getFieldName(&node->weights) == VbName("weights"));
        QVERIFY(node->getFieldName(&node->depth) == VbName("depth"));
    }

    void foreignFieldsHaveNoName()
    {
        const NxRef<ProbeNode> node(new ProbeNode);
        const NxRef<ProbeNode> other(new ProbeNode);
        const NxSFFloat lone(nullptr, "size");
        QVERIFY(node->getFieldName(&other->size).isEmpty());
        QVERIFY(node->getFieldName(&lone).isEmpty());
        QVERIFY(node->getFieldName(nullptr).isEmpty());
    }

    void fieldsComeInTheOrderOfDeclaration()
    {
        const NxRef<ExtendedProbeNode> node(new ExtendedProbeNode);
        const std::vector<NxField*> expected{&node->size, &node->title, &node->weights, &node->depth, &node->last};
        QCOMPARE(node->getFields(), expected);
    }

    void instancesAreMadeFromTheirType()
    {
        const NxType type = NxType::fromName("ExtendedProbe");
        QVERIFY(type == ExtendedProbeNode::getClassTypeId());
        auto* const object = static_cast<NxTypedObject*>(type.createInstance(nullptr));
        const NxRef<NxFieldContainer> node(dynamic_cast<NxFieldContainer*>(object));
        QVERIFY(node);
        QVERIFY(node->getTypeId() == type);
        for (const NxField* field : node->getFields())
            QVERIFY(field->isDefault());
    }

    void aNodeIsATypedObject()
    {
        const NxRef<ProbeNode> node(new ProbeNode);
        NxTypedObject* const object = node.get();
        QVERIFY(object->isOfType(NxFieldContainer::getClassTypeId()));
        QVERIFY(!object->isOfType(NxField::getClassTypeId()));
        NxTypedObject* const field = &node->size;
        QVERIFY(dynamic_cast<NxField*>(field) == &node->size);
        QVERIFY(dynamic_cast<NxField*>(object) == nullptr);
    }

    void unknownFieldsAreKeptInOrder()
    {
        const NxRef<ProbeNode> node(new ProbeNode);
        QVERIFY(node->getUnknownFields().empty());
        node->addUnknownField({"glow", "1 2", true});
        node->addUnknownField({"age", "\"old\"", false});
        QCOMPARE(node->getUnknownFields().size(), std::size_t{2});
        QCOMPARE(node->getUnknownFields()[0].name, std::string("glow"));
        QCOMPARE(node->getUnknownFields()[0].text, std::string("1 2"));
        QVERIFY(node->getUnknownFields()[0].ignored);
        QCOMPARE(node->getUnknownFields()[1].name, std::string("age"));
    }
};

QTEST_APPLESS_MAIN(TestNxFieldContainer)
#include "tst_NxFieldContainer.moc"
