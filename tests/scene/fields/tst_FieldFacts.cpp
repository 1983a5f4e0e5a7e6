#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/fields/list/NxMFFloat.h"
#include "meridane/scene/fields/single/NxSFBitMask.h"
#include "meridane/scene/fields/single/NxSFFilePathString.h"
#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/fields/single/NxSFImage.h"
#include "meridane/scene/fields/single/NxSFRotation.h"
#include "meridane/scene/fields/single/NxSFString.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <QTest>

#include <cmath>
#include <numbers>

namespace {

using meridane::FieldDeclaration;

const NxEnumeration& sides()
{
    static const NxEnumeration names{{"LEFT", 1}, {"RIGHT", 2}};
    return names;
}

/// A class as a plug-in would write one: declarations with facts beside names alone.
class LampNode : public NxTransform {
    NX_NODE(LampNode)

public:
    NxSFFloat power{this,
        {"power", "How bright the lamp is.", NxUnit::Percent, meridane::range(0, 100), meridane::softRange(10, 90),
            meridane::step(5)},
        60};
    NxSFRotation turn{this, {"turn", "How the lamp is turned.", NxUnit::Radians}};
    NxSFString pattern{this, {"pattern", "The image of the light.", meridane::filePath}, "round.png"};
    NxSFFilePathString log{this, "log", "lamp.log"};
    NxMFFloat history{this, {"history", "Earlier powers.", meridane::atLeast(0)}, {1, 2, 3}};
    NxSFBitMask mask{this, {"mask", "The sides that shine."}, sides(), 1};
    NxSFImage photo{this, "photo"};
    NxSFFloat plain{this, "plain", 7};
};

NX_NODE_SOURCE(LampNode, NxTransform, "LampNode", "A lamp for tests.")

/// A class without a description, all of whose fields are its parent's.
class QuietLampNode : public LampNode {
    NX_NODE(QuietLampNode)
};

NX_NODE_SOURCE(QuietLampNode, LampNode, "QuietLampNode")

const NxFieldFacts& factsOf(NxNode& node, const char* name)
{
    const NxFieldData* const data = node.getFieldData();
    return data->getFacts(data->getIndex(VbName(name)));
}

constexpr double unlimited = NxFieldFacts::infinity;

} // namespace

class TestFieldFacts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aFieldHasTheFactsOfItsDeclaration()
    {
        const NxRef<LampNode> lamp(new LampNode);
        const NxFieldFacts& power = factsOf(*lamp, "power");
        QVERIFY(power.description == "How bright the lamp is.");
        QVERIFY(power.unit == NxUnit::Percent);
        QCOMPARE(power.hardMinimum, 0.0);
        QCOMPARE(power.hardMaximum, 100.0);
        QCOMPARE(power.softMinimum, 10.0);
        QCOMPARE(power.softMaximum, 90.0);
        QCOMPARE(power.step, 5.0);
        QVERIFY(!power.isFile);
        QVERIFY(factsOf(*lamp, "turn").unit == NxUnit::Radians);
        QVERIFY(factsOf(*lamp, "pattern").isFile);
        QVERIFY(factsOf(*lamp, "history").description == "Earlier powers.");
        QVERIFY(factsOf(*lamp, "mask").description == "The sides that shine.");
    }

    void valuesFollowTheDeclaration()
    {
        const NxRef<LampNode> lamp(new LampNode);
        QCOMPARE(lamp->power.getValue(), 60.0F);
        QVERIFY(lamp->pattern.getValue() == VbString("round.png"));
        QVERIFY(lamp->log.getValue() == VbString("lamp.log"));
        QCOMPARE(lamp->history.getNum(), 3);
        QCOMPARE(lamp->mask.getValue(), 1);
        QCOMPARE(lamp->plain.getValue(), 7.0F);
    }

    void aNameAloneGivesNoFacts()
    {
        const NxRef<LampNode> lamp(new LampNode);
        for (const char* const name : {"plain", "photo", "log"}) {
            const NxFieldFacts& facts = factsOf(*lamp, name);
            QVERIFY(facts.description.empty());
            QVERIFY(facts.unit == NxUnit::None);
            QVERIFY(!facts.hasHardRange());
            QVERIFY(!facts.hasSoftRange());
            QCOMPARE(facts.step, 0.0);
            QCOMPARE(facts.isFile, name == std::string_view("log")); // its class says so
        }
    }

    void theFactsAreFoundByTheField()
    {
        const NxRef<LampNode> lamp(new LampNode);
        QVERIFY(&meridane::factsOf(lamp->power) == &factsOf(*lamp, "power"));
        const NxSFFloat lone(nullptr, "lone");
        QVERIFY(meridane::factsOf(lone).description.empty());
    }

    void factsAreInherited()
    {
        const NxRef<QuietLampNode> lamp(new QuietLampNode);
        QVERIFY(factsOf(*lamp, "power").description == "How bright the lamp is.");
        QVERIFY(factsOf(*lamp, "translation").unit == NxUnit::Metres);
    }

    void eachFieldKnowsTheClassThatDeclaresIt()
    {
        const NxRef<QuietLampNode> lamp(new QuietLampNode);
        const NxFieldData* const data = lamp->getFieldData();
        QVERIFY(data->getDeclaringType(0) == NxTransform::getClassTypeId());
        QVERIFY(data->getDeclaringType(data->getIndex(VbName("power"))) == LampNode::getClassTypeId());
        QVERIFY(data->getDeclaringType(data->getNumFields() - 1) == LampNode::getClassTypeId());
        QVERIFY(data->getDeclaringType(-1).isBad());
        QVERIFY(data->getDeclaringType(data->getNumFields()).isBad());
    }

    void theDescriptionOfAClassMayBeLeftOut()
    {
        const NxRef<LampNode> lamp(new LampNode);
        const NxRef<QuietLampNode> quiet(new QuietLampNode);
        QVERIFY(lamp->getFieldData()->getDescription() == "A lamp for tests.");
        QVERIFY(quiet->getFieldData()->getDescription().empty());
    }

    void positionsOutOfRangeHaveNoFacts()
    {
        const NxRef<LampNode> lamp(new LampNode);
        const NxFieldData* const data = lamp->getFieldData();
        for (const int index : {-1, data->getNumFields(), 1000})
            QVERIFY(data->getFacts(index).description.empty());
    }

    void theSoftRangeStaysWithinTheHardOne()
    {
        constexpr FieldDeclaration none("a", "A.");
        constexpr FieldDeclaration hard("a", "A.", meridane::range(0, 1));
        constexpr FieldDeclaration wide("a", "A.", meridane::softRange(-5, 5), meridane::range(0, 1));
        constexpr FieldDeclaration half("a", "A.", meridane::atLeast(0), meridane::softRange(-5, 5));
        QCOMPARE(none.facts().softMinimum, -unlimited);
        QCOMPARE(none.facts().softMaximum, unlimited);
        QCOMPARE(hard.facts().softMinimum, 0.0);
        QCOMPARE(hard.facts().softMaximum, 1.0);
        QCOMPARE(wide.facts().softMinimum, 0.0);
        QCOMPARE(wide.facts().softMaximum, 1.0);
        QCOMPARE(half.facts().softMinimum, 0.0);
        QCOMPARE(half.facts().softMaximum, 5.0);
    }

    void limitsMayBeLeftOutOfTheRange()
    {
        constexpr double pi = std::numbers::pi;
        constexpr NxFieldFacts open = FieldDeclaration("a", "A.", meridane::between(0, pi)).facts();
        constexpr NxFieldFacts closed = FieldDeclaration("a", "A.", meridane::range(0, pi)).facts();
        constexpr NxFieldFacts above = FieldDeclaration("a", "A.", meridane::above(0)).facts();
        static_assert(!open.isInHardRange(0) && !open.isInHardRange(pi) && open.isInHardRange(1));
        static_assert(!open.isInSoftRange(0) && !open.isInSoftRange(pi) && open.isInSoftRange(1));
        static_assert(closed.isInHardRange(0) && closed.isInHardRange(pi) && !closed.isInHardRange(-0.1));
        static_assert(!above.isInHardRange(0) && above.isInHardRange(unlimited) && above.hasHardRange());
        QVERIFY(!open.isInHardRange(std::nan("")));
        QVERIFY(!open.isInSoftRange(std::nan("")));
    }

    void unitsHaveSymbols()
    {
        QVERIFY(meridane::symbolOf(NxUnit::None).empty());
        QVERIFY(meridane::symbolOf(NxUnit::Radians) == "rad");
        QVERIFY(meridane::symbolOf(NxUnit::Metres) == "m");
        QVERIFY(meridane::symbolOf(NxUnit::Percent) == "%");
        QVERIFY(meridane::symbolOf(NxUnit::Seconds) == "s");
    }
};

QTEST_APPLESS_MAIN(TestFieldFacts)
#include "tst_FieldFacts.moc"
