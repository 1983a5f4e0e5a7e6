#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/single/NxSFBitMask.h"

#include <QTest>

#include <limits>

namespace {

const NxEnumeration sides{{"None", 0}, {"Left", 1}, {"Right", 2}, {"Top", 4}, {"Ends", 3}, {"Sign", -2147483647 - 1}};
const NxEnumeration unnamedZero{{"One", 1}, {"OneAndTwo", 3}};

} // namespace

class TestNxSFBitMask : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void itIsAKindOfEnumeration()
    {
        NxSFBitMask field(nullptr, "sides", sides, 5);
        QVERIFY(field.isOfType(NxSFEnum::getClassTypeId()));
        QVERIFY(field.getTypeId() == NxSFBitMask::getClassTypeId());
        NxSFEnum& base = field;
        QCOMPARE(base.getValue(), 5);
        int count = 0;
        int* values = nullptr;
        VbName* names = nullptr;
        base.getEnums(count, values, names);
        QCOMPARE(count, 6);
        int value = 0;
        QVERIFY(base.enumValueByName(VbName("Ends"), value));
        QCOMPARE(value, 3);
    }

    void masksAreWrittenByName_data()
    {
        QTest::addColumn<int>("mask");
        QTest::addColumn<std::string>("text");
        QTest::newRow("none") << 0 << std::string("None");
        QTest::newRow("one") << 2 << std::string("Right");
        QTest::newRow("two") << 5 << std::string("Left | Top");
        QTest::newRow("a name of its own") << 3 << std::string("Ends");
        QTest::newRow("single bits ahead of a name for both") << 7 << std::string("Left | Right | Top");
        QTest::newRow("unnamed bits") << 0x30 << std::string("0x30");
        QTest::newRow("named and unnamed bits") << 0x31 << std::string("Left | 0x30");
        QTest::newRow("the sign bit") << std::numeric_limits<int>::min() + 1 << std::string("Left | Sign");
        QTest::newRow("all bits") << -1 << std::string("Left | Right | Top | Sign | 0x7ffffff8");
    }

    void masksAreWrittenByName()
    {
        QFETCH(const int, mask);
        QFETCH(const std::string, text);
        NxSFBitMask field(nullptr, "sides", sides);
        field.setValue(mask);
        VbString written;
        field.get(written);
        QCOMPARE(std::string(written.view()), text);
    }

    void noBitsAreZeroWhereNoneIsNamed()
    {
        NxSFBitMask field(nullptr, "mask", unnamedZero);
        VbString text;
        field.get(text);
        QVERIFY(text == VbString("0"));
        // A name of several bits is written if no earlier name covers them.
        field.setValue(7);
        field.get(text);
        QVERIFY(text == VbString("One | OneAndTwo | 0x4"));
    }

    void namesAndNumbersAreJoined_data()
    {
        QTest::addColumn<std::string>("text");
        QTest::addColumn<int>("mask");
        QTest::newRow("blanks") << std::string("  Left|Top ") << 5;
        QTest::newRow("twice") << std::string("Left | Left") << 1;
        QTest::newRow("with nothing") << std::string("None | Left | 0") << 1;
        QTest::newRow("decimal") << std::string("16 | Left") << 17;
        QTest::newRow("hexadecimal") << std::string("0xFFFFFFFF") << -1;
        QTest::newRow("negative") << std::string("-2") << -2;
    }

    void namesAndNumbersAreJoined()
    {
        QFETCH(const std::string, text);
        QFETCH(const int, mask);
        NxSFBitMask field(nullptr, "sides", sides);
        QVERIFY(field.set(text.c_str()));
        QCOMPARE(field.getValue(), mask);
    }

    void aNameAloneReplacesTheMask()
    {
        NxSFBitMask field(nullptr, "sides", sides, 7);
        field.setValue(VbName("Right"));
        QCOMPARE(field.getValue(), 2);
    }

    void everyMaskSurvivesItsText()
    {
        for (const NxEnumeration* enumeration : {&sides, &unnamedZero}) {
            NxSFBitMask field(nullptr, "mask", *enumeration);
            for (int mask = -64; mask < 64; ++mask) {
                field.setValue(mask);
                VbString text;
                field.get(text);
                field.setValue(0);
                QVERIFY2(field.set(text), text.toUtf8());
                QCOMPARE(field.getValue(), mask);
            }
        }
    }
};

QTEST_APPLESS_MAIN(TestNxSFBitMask)
#include "tst_NxSFBitMask.moc"
