#include "scene/NotificationCount.h"
#include "scene/fields/TextOf.h"

#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/list/NxMFEnum.h"
#include "meridane/scene/fields/single/NxSFEnum.h"
#include "meridane/scene/text/TextReader.h"

#include <QTest>

namespace {

const NxEnumeration styles{{"Filled", 2}, {"Lines", 1}, {"Points", 8}};

// A field whose names come from elsewhere.
class AliasField final : public NxSFEnum {
public:
    AliasField()
        : NxSFEnum(nullptr, "alias", styles)
    {
    }
    bool enumValueByName(const VbName& name, int& value) const override
    {
        return NxSFEnum::enumValueByName(name == VbName("Solid") ? VbName("Filled") : name, value);
    }
};

} // namespace

class TestNxSFEnum : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theEnumerationIsHandedOutInOrder()
    {
        const NxSFEnum field(nullptr, "style", styles);
        int count = 0;
        int* values = nullptr;
        VbName* names = nullptr;
        field.getEnums(count, values, names);
        QCOMPARE(count, 3);
        QCOMPARE(values[0], 2);
        QCOMPARE(values[2], 8);
        QVERIFY(names[1] == VbName("Lines"));
    }

    void aNameSetsItsValue()
    {
        NxSFEnum field(nullptr, "style", styles);
        NotificationCount notifications(field);
        field.setValue(VbName("Points"));
        QCOMPARE(field.getValue(), 8);
        QCOMPARE(notifications.take(), 1);
    }

    void anUnknownNameChangesNothing()
    {
        NxSFEnum field(nullptr, "style", styles, 1);
        NotificationCount notifications(field);
        field.setValue(VbName("points"));
        field.setValue(VbName());
        QCOMPARE(field.getValue(), 1);
        QCOMPARE(notifications.take(), 0);
        int value = 42;
        QVERIFY(!field.enumValueByName(VbName("points"), value));
        QCOMPARE(value, 42);
    }

    void namesGoThroughTheVirtualOperation()
    {
        AliasField field;
        field.setValue(VbName("Solid"));
        QCOMPARE(field.getValue(), 2);
    }

    void valuesWithoutANameAreNumbers()
    {
        NxSFEnum field(nullptr, "style", styles);
        field.setValue(-77);
        QCOMPARE(field.getValue(), -77);
        QCOMPARE(textOf(field), std::string("-77"));
        QVERIFY(field.set("2"));
        QCOMPARE(textOf(field), std::string("Filled"));
    }

    void theDefaultIsTheOneGiven()
    {
        QCOMPARE(NxSFEnum(nullptr, "style", styles).getValue(), 0);
        QCOMPARE(NxSFEnum(nullptr, "style", styles, 8).getValue(), 8);
    }

    void anUnknownNameTellsTheNames()
    {
        NxSFEnum field(nullptr, "style", styles);
        meridane::TextReader reader("  filled");
        QCOMPARE(field.readText(reader, true, 1), NxField::Progress::Failed);
        QCOMPARE(reader.expected(), std::string("one of Filled, Lines, Points"));
        QCOMPARE(reader.failurePosition(), std::size_t{2});
    }

    void anEmptyEnumerationTakesNumbers()
    {
        const NxEnumeration none{};
        NxSFEnum field(nullptr, "style", none);
        QVERIFY(field.set("5"));
        QCOMPARE(textOf(field), std::string("5"));
        QVERIFY(!field.set("Filled"));
        int count = 42;
        int* values = nullptr;
        VbName* names = nullptr;
        field.getEnums(count, values, names);
        QCOMPARE(count, 0);
    }

    void listsShareTheEnumeration()
    {
        NxMFEnum field(nullptr, "styles", styles, {1, 2, 3});
        QCOMPARE(textOf(field), std::string("[Lines, Filled, 3]"));
        QVERIFY(field.set1(0, "Points"));
        QVERIFY(field.set1Value(1, 1));
        QVERIFY(!field.set1(2, "lines"));
        QCOMPARE(textOf(field), std::string("[Points, Lines, 3]"));
        int count = 0;
        int* values = nullptr;
        VbName* names = nullptr;
        field.getEnums(count, values, names);
        QCOMPARE(count, 3);
        QVERIFY(names[2] == VbName("Points"));
    }
};

QTEST_APPLESS_MAIN(TestNxSFEnum)
#include "tst_NxSFEnum.moc"
