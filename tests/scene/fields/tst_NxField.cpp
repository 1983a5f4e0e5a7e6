#include "base/FailingMemory.h"
#include "base/HandlerGuard.h"
#include "scene/FieldCatalogue.h"
#include "scene/NotificationCount.h"

#include "meridane/base/errors/NxMemoryError.h"
#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/NxNodeSensor.h"
#include "meridane/scene/fields/NxSField.h"
#include "meridane/scene/fields/list/NxMFFloat.h"
#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/fields/single/NxSFImage.h"
#include "meridane/scene/fields/single/NxSFString.h"

#include <QTest>

#include <array>
#include <initializer_list>
#include <string>

// What every field class does alike.
class TestNxField : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theTypeIsNamedAndPlaced_data() { addFieldKindRows(); }

    void theTypeIsNamedAndPlaced()
    {
        QFETCH(const FieldKind*, kind);
        const auto node = kind->makeNode();
        const NxField& field = fieldOf(node);
        QVERIFY(!kind->type.isBad());
        QVERIFY(field.getTypeId() == kind->type);
        QVERIFY(NxType::fromName(kind->type.getName()) == kind->type);
        QVERIFY(!kind->type.canCreateInstance());
        const std::string name = kind->type.getName().getString();
        const bool single = name.starts_with("SF");
        QVERIFY(single || name.starts_with("MF"));
        QVERIFY(field.isOfType(NxField::getClassTypeId()));
        QCOMPARE(field.isOfType(NxSField::getClassTypeId()), single);
        QCOMPARE(field.isOfType(NxMField::getClassTypeId()), !single);
        QCOMPARE(dynamic_cast<const NxSField*>(&field) != nullptr, single);
        QVERIFY(field.getContainer() == node.get());
        QVERIFY(field.valueBytes() > 0);
    }

    void manyChangesGiveOneCallback_data() { addFieldKindRows(); }

    void manyChangesGiveOneCallback()
    {
        QFETCH(const FieldKind*, kind);
        RandomValues random(1);
        const auto node = kind->makeNode();
        NotificationCount notifications(fieldOf(node));
        for (int i = 0; i < 100; ++i)
            kind->setRandom(fieldOf(node), random);
        QCOMPARE(notifications.take(), 1);
        QCOMPARE(notifications.take(), 0);
        kind->setRandom(fieldOf(node), random);
        QCOMPARE(notifications.take(), 1);
    }

    void settingTheSameValueNotifies_data() { addFieldKindRows(); }

    void settingTheSameValueNotifies()
    {
        QFETCH(const FieldKind*, kind);
        const auto node = kind->makeNode();
        NotificationCount notifications(fieldOf(node));
        VbString text;
        fieldOf(node).get(text);
        QVERIFY(fieldOf(node).set(text));
        QCOMPARE(notifications.take(), 1);
        QVERIFY(fieldOf(node).copyFrom(fieldOf(node)));
        QCOMPARE(notifications.take(), 1);
        fieldOf(node).touch();
        QCOMPARE(notifications.take(), 1);
    }

    void theCallbackNeverRunsInsideTheChange_data() { addFieldKindRows(); }

    void theCallbackNeverRunsInsideTheChange()
    {
        QFETCH(const FieldKind*, kind);
        RandomValues random(2);
        const auto node = kind->makeNode();
        int calls = 0;
        NxFieldSensor sensor([](void* data, NxSensor*) { ++*static_cast<int*>(data); }, &calls);
        sensor.attach(&fieldOf(node));
        kind->setRandom(fieldOf(node), random);
        QCOMPARE(calls, 0);
        QVERIFY(sensor.isScheduled());
        NxDelayQueue::getDefault().process();
        QCOMPARE(calls, 1);
        QVERIFY(!sensor.isScheduled());
    }

    void ignoringNotifiesWhenTheFlagChanges_data() { addFieldKindRows(); }

    void ignoringNotifiesWhenTheFlagChanges()
    {
        QFETCH(const FieldKind*, kind);
        const auto node = kind->makeNode();
        NotificationCount notifications(fieldOf(node));
        QVERIFY(!fieldOf(node).isIgnored());
        fieldOf(node).setIgnored(0);
        QCOMPARE(notifications.take(), 0);
        fieldOf(node).setIgnored(2);
        QVERIFY(fieldOf(node).isIgnored());
        QCOMPARE(notifications.take(), 1);
        fieldOf(node).setIgnored(1);
        QCOMPARE(notifications.take(), 0);
        fieldOf(node).setIgnored(0);
        QVERIFY(!fieldOf(node).isIgnored());
        QCOMPARE(notifications.take(), 1);
        QVERIFY(fieldOf(node).isDefault());
    }

    void changesReachTheNodesSensors_data() { addFieldKindRows(); }

    void changesReachTheNodesSensors()
    {
        QFETCH(const FieldKind*, kind);
        RandomValues random(3);
        const auto node = kind->makeNode();
        int calls = 0;
        NxNodeSensor sensor([](void* data, NxSensor*) { ++*static_cast<int*>(data); }, &calls);
        sensor.attach(node.get());
        kind->setRandom(fieldOf(node), random);
        kind->setRandom(fieldOf(node), random);
        NxDelayQueue::getDefault().process();
        QCOMPARE(calls, 1);
        fieldOf(node).setIgnored(1);
        NxDelayQueue::getDefault().process();
        QCOMPARE(calls, 2);
    }

    void aNewNodesFieldHasItsDefault_data() { addFieldKindRows(); }

    void aNewNodesFieldHasItsDefault()
    {
        QFETCH(const FieldKind*, kind);
        const auto node = kind->makeNode();
        QVERIFY(fieldOf(node).isDefault());
        VbString original;
        fieldOf(node).get(original);

        RandomValues random(4);
        bool changed = false;
        for (int i = 0; i < 100 && !changed; ++i) {
            kind->setRandom(fieldOf(node), random);
            changed = !fieldOf(node).isDefault();
        }
        QVERIFY(changed);
        QVERIFY(fieldOf(node).set(original));
        QVERIFY(fieldOf(node).isDefault());
    }

    void copiesAreTheSame_data() { addFieldKindRows(); }

    void copiesAreTheSame()
    {
        QFETCH(const FieldKind*, kind);
        RandomValues random(5);
        const auto source = kind->makeNode();
        const auto copy = kind->makeNode();
        NotificationCount notifications(fieldOf(copy));
        for (int i = 0; i < 100; ++i) {
            kind->setRandom(fieldOf(source), random);
            QVERIFY(fieldOf(copy).copyFrom(fieldOf(source)));
            QVERIFY(fieldOf(copy).isSame(fieldOf(source)));
            QCOMPARE(notifications.take(), 1);
            // Fields are the same if their texts are.
            VbString text;
            fieldOf(copy).get(text);
            kind->setRandom(fieldOf(source), random);
            VbString other;
            fieldOf(source).get(other);
            QCOMPARE(fieldOf(copy).isSame(fieldOf(source)), text == other);
        }
    }

    void otherClassesAreNeitherCopiedNorTheSame_data() { addFieldKindRows(); }

    void otherClassesAreNeitherCopiedNorTheSame()
    {
        QFETCH(const FieldKind*, kind);
        const auto node = kind->makeNode();
        for (const FieldKind& other : fieldCatalogue()) {
            if (&other == kind)
                continue;
            const auto foreign = other.makeNode();
            NotificationCount notifications(fieldOf(node));
            QVERIFY(!fieldOf(node).copyFrom(fieldOf(foreign)));
            QVERIFY(!fieldOf(node).isSame(fieldOf(foreign)));
            QCOMPARE(notifications.take(), 0);
        }
    }

    void copiesThatDoNotFitInMemoryChangeNothing_data() { addFieldKindRows(); }

    void copiesThatDoNotFitInMemoryChangeNothing()
    {
        QFETCH(const FieldKind*, kind);
        RandomValues random(6);
        const std::array nodes{kind->makeNode(), kind->makeNode(), kind->makeNode()};
        NxField& source = fieldOf(nodes[0]);
        NxField& copy = fieldOf(nodes[1]);
        NxField& before = fieldOf(nodes[2]);
        const HandlerGuard<NxMemoryError> guard(
            [](const NxError*, void* data) { ++*static_cast<int*>(data); }, &m_memoryErrors);
        m_memoryErrors = 0;
        int failures = 0;
        for (int i = 0; i < 20; ++i) {
            kind->setRandom(source, random);
            kind->setRandom(copy, random);
            QVERIFY(before.copyFrom(copy));
            for (long succeed = 0;; ++succeed) {
                FailingMemory::allocationsLeft = succeed;
                const bool copied = copy.copyFrom(source);
                const bool ranOut = FailingMemory::allocationsLeft < 0;
                FailingMemory::allocationsLeft = -1;
                QCOMPARE(copied, !ranOut);
                QVERIFY(copy.isSame(copied ? source : before));
                if (copied)
                    break;
                ++failures;
            }
        }
        QCOMPARE(m_memoryErrors, failures);
        const std::string name = kind->type.getName().getString();
        const bool needsMemory = name.starts_with("MF") || name.ends_with("String") || name.ends_with("Image");
        QCOMPARE(failures > 0, needsMemory);
    }

    void classesWithoutATypeAreToldApart()
    {
        // As a class is whose name was taken.
        class NamelessText : public NxSFString {
        public:
            using NxSFString::NxSFString;
            [[nodiscard]] NxType getTypeId() const override { return {}; }
        };
        class NamelessNumber : public NxSFFloat {
        public:
            using NxSFFloat::NxSFFloat;
            [[nodiscard]] NxType getTypeId() const override { return {}; }
        };
        class NamelessList : public NxMFFloat {
        public:
            using NxMFFloat::NxMFFloat;
            [[nodiscard]] NxType getTypeId() const override { return {}; }
        };
        class NamelessImage : public NxSFImage {
        public:
            using NxSFImage::NxSFImage;
            [[nodiscard]] NxType getTypeId() const override { return {}; }
        };
        NamelessText text(nullptr, "text", "a");
        NamelessNumber number(nullptr, "number", 2);
        NamelessList list(nullptr, "list", {1, 2});
        NamelessImage image(nullptr, "image");
        for (NxField* left : std::initializer_list<NxField*>{&text, &number, &list, &image}) {
            for (const NxField* right : std::initializer_list<const NxField*>{&text, &number, &list, &image}) {
                QCOMPARE(left->isSame(*right), left == right);
                QCOMPARE(left->copyFrom(*right), left == right);
            }
        }
        const NamelessText another(nullptr, "another", "b");
        QVERIFY(text.copyFrom(another));
        QCOMPARE(text.getValue(), VbString("b"));
        QCOMPARE(number.getValue(), 2.0F);
    }

    void theIgnoredFlagIsNoPartOfTheValue()
    {
        NxSFFloat first(nullptr, "first", 2);
        NxSFFloat second(nullptr, "second", 2);
        first.setIgnored(1);
        QVERIFY(first.isSame(second));
        QVERIFY(second.copyFrom(first));
        QVERIFY(!second.isIgnored());
    }

    void aLoneFieldHasNoContainerAndNoDefault()
    {
        NxSFFloat field(nullptr, "field", 3);
        QVERIFY(field.getContainer() == nullptr);
        QVERIFY(!field.isDefault());
        field.setValue(4);
        QCOMPARE(field.getValue(), 4.0F);
    }

    void aNullTextIsRefused()
    {
        NxSFFloat field(nullptr, "field", 3);
        QVERIFY(!field.set(static_cast<const char*>(nullptr)));
        QCOMPARE(field.getValue(), 3.0F);
    }

    void theOverheadIsThreePointersAndAFlag()
    {
        // The value uses the bits of the word that the flag leaves.
        QCOMPARE(sizeof(NxSFFloat), 3 * sizeof(void*) + 2 * sizeof(float));
    }

private:
    int m_memoryErrors = 0;
};

QTEST_APPLESS_MAIN(TestNxField)
#include "tst_NxField.moc"
