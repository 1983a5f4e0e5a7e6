#include "scene/NotificationCount.h"
#include "scene/components/NumericKinds.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/list/NxMFVec3f.h"
#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/fields/single/NxSFPlane.h"

#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <set>
#include <sstream>

using components::addNumericKinds;
using components::fill;
using components::isList;
using components::smallNumber;
using components::textOf;
using meridane::FieldComponents;

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// A class of fields that a plug-in could bring along.
class DerivedFloat : public NxSFFloat {
    NX_FIELD(DerivedFloat)

public:
    using NxSFFloat::NxSFFloat;
};
NX_FIELD_SOURCE(DerivedFloat, NxSFFloat, "DerivedFloat")

/// The numbers of a value as the field writes them, without brackets and commas between values.
std::vector<double> numbersOf(const NxField& field)
{
    std::string text = textOf(field);
    std::ranges::replace_if(
        text, [](char sign) { return sign == '[' || sign == ']' || sign == ','; }, ' ');
    std::istringstream stream(text);
    std::vector<double> numbers;
    for (double number = 0; stream >> number;)
        numbers.push_back(number);
    return numbers;
}

std::vector<float> asFloats(const std::vector<double>& numbers)
{
    std::vector<float> floats(numbers.size());
    std::ranges::transform(numbers, floats.begin(), [](double number) { return static_cast<float>(number); });
    return floats;
}

} // namespace

/// Numbers of the values of every field class.
class TestFieldComponents : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void numbersAreKnownOfAllClassesButTextsAndImages()
    {
        const std::set<std::string> others{"SFString", "SFFilePathString", "SFName", "SFImage", "MFString", "MFName"};
        for (const FieldKind& kind : fieldCatalogue()) {
            const std::string name = kind.type.getName().getString();
            QCOMPARE(FieldComponents::of(kind.type) == nullptr, others.contains(name));
            const NxRef<NxFieldContainer> node = kind.makeNode();
            QCOMPARE(FieldComponents::of(fieldOf(node)), FieldComponents::of(kind.type));
        }
        QVERIFY(FieldComponents::of(NxType()) == nullptr);
        QVERIFY(FieldComponents::of(NxField::getClassTypeId()) == nullptr);
    }

    void aDerivedClassHasThoseOfItsBase()
    {
        DerivedFloat field(nullptr, "derived", 2);
        const FieldComponents* const components = FieldComponents::of(field);
        QVERIFY(components != nullptr);
        QCOMPARE(components, FieldComponents::of(NxSFFloat::getClassTypeId()));
        QVERIFY(components->set(field, 0, 0, 3.5));
        QCOMPARE(field.getValue(), 3.5F);
    }

    void namesFollowTheTextForm_data() { addNumericKinds(); }

    void namesFollowTheTextForm()
    {
        static const std::map<std::string, std::string> expected{{"Color", "r g b"}, {"ColorRGBA", "r g b a"},
            {"Vec2f", "x y"}, {"Vec2s", "x y"}, {"Vec2i32", "x y"}, {"Vec3f", "x y z"}, {"Vec3s", "x y z"},
            {"Vec4f", "x y z w"}, {"Rotation", "x y z angle"}, {"Plane", "x y z distance"},
            {"Matrix", "m00 m01 m02 m03 m10 m11 m12 m13 m20 m21 m22 m23 m30 m31 m32 m33"},
            {"Box2f", "min x min y max x max y"}, {"Box3s", "min x min y min z max x max y max z"}};
        QFETCH(const FieldKind*, kind);
        const FieldComponents& components = *FieldComponents::of(kind->type);
        std::string names;
        for (int i = 0; i < components.count(); ++i)
            names.append(i > 0 ? " " : "").append(components.name(i));
        const auto found = expected.find(std::string(kind->type.getName().getString()).substr(2));
        QCOMPARE(names, found != expected.end() ? found->second : std::string());
        QVERIFY(components.name(-1).empty());
        QVERIFY(components.name(components.count()).empty());
    }

    void numbersAreThoseOfTheText_data() { addNumericKinds(); }

    void numbersAreThoseOfTheText()
    {
        QFETCH(const FieldKind*, kind);
        const NxRef<NxFieldContainer> node = kind->makeNode();
        NxField& field = fieldOf(node);
        const FieldComponents& components = *FieldComponents::of(field);
        fill(field, components, 5);
        QCOMPARE(components.rows(field), isList(*kind) ? 5 : 1);
        std::vector<double> read;
        for (int row = 0; row < components.rows(field); ++row) {
            for (int i = 0; i < components.count(); ++i)
                read.push_back(components.get(field, row, i));
        }
        const bool hasOtherText = kind->type.getName() == VbName("SFBool") || kind->type.getName() == VbName("MFBool")
            || kind->type.getName() == VbName("SFEnum") || kind->type.getName() == VbName("MFEnum")
            || kind->type.getName() == VbName("SFBitMask");
        if (!hasOtherText)
            QCOMPARE(asFloats(read), asFloats(numbersOf(field)));
        for (std::size_t i = 0; hasOtherText && i < read.size(); ++i)
            QCOMPARE(read[i], smallNumber(components, i + 1));
    }

    void aColumnIsReadAtOnce_data() { addNumericKinds(); }

    void aColumnIsReadAtOnce()
    {
        QFETCH(const FieldKind*, kind);
        const NxRef<NxFieldContainer> node = kind->makeNode();
        NxField& field = fieldOf(node);
        const FieldComponents& components = *FieldComponents::of(field);
        fill(field, components, 7);
        const int rows = components.rows(field);
        for (int component = 0; component < components.count(); ++component) {
            for (const int first : {0, 2, rows}) {
                std::vector<double> column(10, -1);
                components.read(field, first, component, column);
                for (int i = 0; i < 10; ++i) {
                    const double number = column[static_cast<std::size_t>(i)];
                    if (first + i < rows)
                        QCOMPARE(number, components.get(field, first + i, component));
                    else
                        QVERIFY(std::isnan(number));
                }
            }
        }
    }

    void whatDoesNotExistIsNotANumber_data() { addNumericKinds(); }

    void whatDoesNotExistIsNotANumber()
    {
        QFETCH(const FieldKind*, kind);
        const NxRef<NxFieldContainer> node = kind->makeNode();
        NxField& field = fieldOf(node);
        const FieldComponents& components = *FieldComponents::of(field);
        fill(field, components, 3);
        const std::string before = textOf(field);
        const int rows = components.rows(field);
        NotificationCount notifications(field);
        const std::vector<double> row(static_cast<std::size_t>(components.count()));
        for (const int wrong : {-1, rows, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
            QVERIFY(std::isnan(components.get(field, wrong, 0)));
            std::array<double, 3> column{};
            components.read(field, wrong, 0, column);
            QVERIFY(std::ranges::all_of(column, [](double number) { return std::isnan(number); }));
            QVERIFY(!components.set(field, wrong, 0, 1));
            QVERIFY(!components.setRow(field, wrong, row));
        }
        for (const int wrong : {-1, components.count(), std::numeric_limits<int>::max()}) {
            QVERIFY(std::isnan(components.get(field, 0, wrong)));
            std::array<double, 1> column{};
            components.read(field, 0, wrong, column);
            QVERIFY(std::isnan(column[0]));
            QVERIFY(!components.set(field, 0, wrong, 1));
        }
        std::vector<double> longer = row;
        longer.push_back(0);
        QVERIFY(!components.setRow(field, 0, longer));
        QVERIFY(!components.setRow(field, 0, std::span(row).first(row.size() - 1)));
        QCOMPARE(notifications.take(), 0);
        QCOMPARE(textOf(field), before);
    }

    void eachNumberIsWrittenAlone_data() { addNumericKinds(); }

    void eachNumberIsWrittenAlone()
    {
        QFETCH(const FieldKind*, kind);
        const NxRef<NxFieldContainer> node = kind->makeNode();
        NxField& field = fieldOf(node);
        const FieldComponents& components = *FieldComponents::of(field);
        const bool isPlane = components.name(3) == "distance";
        for (int component = isPlane ? 3 : 0; component < components.count(); ++component) {
            fill(field, components, 3);
            const int row = components.rows(field) - 1;
            std::vector<double> before;
            for (int i = 0; i < components.count(); ++i)
                before.push_back(components.get(field, row, i));
            NotificationCount notifications(field);
            const double wanted = 1 - std::min(before[static_cast<std::size_t>(component)], 1.0);
            QVERIFY(components.set(field, row, component, wanted));
            QCOMPARE(notifications.take(), 1);
            before[static_cast<std::size_t>(component)] = wanted;
            for (int i = 0; i < components.count(); ++i)
                QCOMPARE(components.get(field, row, i), before[static_cast<std::size_t>(i)]);
        }
    }

    void thePlanesNormalKeepsItsLength()
    {
        NxSFPlane plane(nullptr, "plane");
        const FieldComponents& components = *FieldComponents::of(plane);
        QVERIFY(components.set(plane, 0, 0, 1));
        QCOMPARE(components.get(plane, 0, 0), components.get(plane, 0, 2));
        QVERIFY(std::abs(components.get(plane, 0, 0) - std::sqrt(0.5)) < 1e-6);
    }

    void aFieldWithoutANodeIsWrittenToo()
    {
        NxMFVec3f list(nullptr, "list", {{1, 2, 3}, {4, 5, 6}});
        const FieldComponents& components = *FieldComponents::of(list);
        const std::array rows{0, 1};
        const std::array values{10.0, 20.0};
        QVERIFY(components.setColumn(list, rows, 1, values));
        QVERIFY(components.setRow(list, 1, std::array{7.0, 8.0, 9.0}));
        QCOMPARE(textOf(list), std::string("[1 10 3, 7 8 9]"));
        NxSFFloat single(nullptr, "single");
        QVERIFY(FieldComponents::of(single)->set(single, 0, 0, 0.1));
        QCOMPARE(single.getValue(), 0.1F);
    }

    void numbersThatDoNotFitAreRefused_data() { addNumericKinds(); }

    void numbersThatDoNotFitAreRefused()
    {
        QFETCH(const FieldKind*, kind);
        const NxRef<NxFieldContainer> node = kind->makeNode();
        NxField& field = fieldOf(node);
        const FieldComponents& components = *FieldComponents::of(field);
        fill(field, components, 3);
        const auto check = [&](double value, bool fits) {
            const std::string before = textOf(field);
            NotificationCount notifications(field);
            std::vector<double> row(static_cast<std::size_t>(components.count()));
            row.back() = value;
            const auto list = std::array{0, 1};
            const auto column = std::array{1.0, value};
            const int rows = components.rows(field);
            QCOMPARE(!components.refusal(value).has_value(), fits);
            QCOMPARE(components.set(field, 0, 0, value), fits);
            QCOMPARE(components.setRow(field, 0, row), fits);
            QCOMPARE(components.setColumn(field, list, 0, column), fits && rows > 1);
            if (!fits) {
                QCOMPARE(notifications.take(), 0);
                QCOMPARE(textOf(field), before);
            }
        };
        const bool isWhole = components.isWhole();
        check(components.lowest(), true);
        check(components.highest(), true);
        check(0.5, !isWhole);
        check(infinity, !isWhole);
        check(-infinity, !isWhole);
        check(notANumber, !isWhole);
        check(1e300, components.number() == FieldComponents::Number::Double);
        check(components.highest() + 1, !isWhole && components.highest() + 1 == components.highest());
        check(components.lowest() - 1, !isWhole && components.lowest() - 1 == components.lowest());
    }

    void aRefusalNamesTheRange()
    {
        const auto refusal = [](const char* fieldClass, double value) {
            return QByteArray::fromStdString(
                FieldComponents::of(NxType::fromName(VbName(fieldClass)))->refusal(value).value_or(""));
        };
        QCOMPARE(refusal("SFShort", 40000),
            QByteArray("40000 is out of range: the field takes whole numbers from -32768 to 32767."));
        QCOMPARE(refusal("SFShort", 4e9),
            QByteArray("4000000000 is out of range: the field takes whole numbers from -32768 to 32767."));
        QCOMPARE(refusal("SFUInt32", 1.5), QByteArray("1.5 isn't a whole number."));
        QCOMPARE(refusal("SFInt32", infinity), QByteArray("inf isn't a whole number."));
        QVERIFY(refusal("SFFloat", 1e39).startsWith("1e+39 is out of range"));
        QCOMPARE(refusal("SFFloat", 1e38), QByteArray());
    }
};

QTEST_APPLESS_MAIN(TestFieldComponents)
#include "tst_FieldComponents.moc"
