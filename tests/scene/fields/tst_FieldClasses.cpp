#include "scene/fields/TextOf.h"

#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/list/NxMFBool.h"
#include "meridane/scene/fields/list/NxMFColor.h"
#include "meridane/scene/fields/list/NxMFColorRGBA.h"
#include "meridane/scene/fields/list/NxMFMatrix.h"
#include "meridane/scene/fields/list/NxMFName.h"
#include "meridane/scene/fields/list/NxMFPlane.h"
#include "meridane/scene/fields/list/NxMFRotation.h"
#include "meridane/scene/fields/list/NxMFString.h"
#include "meridane/scene/fields/list/NxMFVec2f.h"
#include "meridane/scene/fields/list/NxMFVec2i32.h"
#include "meridane/scene/fields/list/NxMFVec2s.h"
#include "meridane/scene/fields/single/NxSFBool.h"
#include "meridane/scene/fields/single/NxSFBox2f.h"
#include "meridane/scene/fields/single/NxSFBox3s.h"
#include "meridane/scene/fields/single/NxSFColor.h"
#include "meridane/scene/fields/single/NxSFColorRGBA.h"
#include "meridane/scene/fields/single/NxSFDouble.h"
#include "meridane/scene/fields/single/NxSFEnum.h"
#include "meridane/scene/fields/single/NxSFFilePathString.h"
#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/fields/single/NxSFInt32.h"
#include "meridane/scene/fields/single/NxSFMatrix.h"
#include "meridane/scene/fields/single/NxSFName.h"
#include "meridane/scene/fields/single/NxSFPlane.h"
#include "meridane/scene/fields/single/NxSFRotation.h"
#include "meridane/scene/fields/single/NxSFShort.h"
#include "meridane/scene/fields/single/NxSFTime.h"
#include "meridane/scene/fields/single/NxSFUInt32.h"
#include "meridane/scene/fields/single/NxSFUShort.h"
#include "meridane/scene/fields/single/NxSFVec2f.h"
#include "meridane/scene/fields/single/NxSFVec2i32.h"
#include "meridane/scene/fields/single/NxSFVec2s.h"
#include "meridane/scene/fields/single/NxSFVec3f.h"
#include "meridane/scene/fields/single/NxSFVec3s.h"
#include "meridane/scene/fields/single/NxSFVec4f.h"

#include <QTest>

#include <concepts>

namespace {

// What `getValue` of a field class gives.
template <typename Field>
using Got = decltype(std::declval<const Field&>().getValue());
// What a row of a list class gives.
template <typename Field>
using GotRow = decltype(std::declval<const Field&>()[0]);

// Editors are written against these types, so they are part of the classes' contract.
static_assert(std::same_as<Got<NxSFBool>, int>);
static_assert(std::same_as<Got<NxSFBox2f>, const VbBox2f&>);
static_assert(std::same_as<Got<NxSFBox3s>, const VbBox3s&>);
static_assert(std::same_as<Got<NxSFColor>, const VbColor&>);
static_assert(std::same_as<Got<NxSFColorRGBA>, const VbColorRGBA&>);
static_assert(std::same_as<Got<NxSFDouble>, double>);
static_assert(std::same_as<Got<NxSFEnum>, int>);
static_assert(std::same_as<Got<NxSFFilePathString>, const VbString&>);
static_assert(std::same_as<Got<NxSFFloat>, float>);
static_assert(std::same_as<Got<NxSFMatrix>, const VbMatrix&>);
static_assert(std::same_as<Got<NxSFName>, const VbName&>);
static_assert(std::same_as<Got<NxSFPlane>, const VbPlane&>);
static_assert(std::same_as<Got<NxSFRotation>, const VbRotation&>);
static_assert(std::same_as<Got<NxSFString>, const VbString&>);
static_assert(std::same_as<Got<NxSFVec2f>, const VbVec2f&>);
static_assert(std::same_as<Got<NxSFVec2i32>, const VbVec2i32&>);
static_assert(std::same_as<Got<NxSFVec2s>, const VbVec2s&>);
static_assert(std::same_as<Got<NxSFVec3f>, const VbVec3f&>);
static_assert(std::same_as<Got<NxSFVec4f>, const VbVec4f&>);
static_assert(std::same_as<GotRow<NxMFMatrix>, const VbMatrix&>);
static_assert(std::same_as<GotRow<NxMFPlane>, const VbPlane&>);
static_assert(std::same_as<GotRow<NxMFRotation>, const VbRotation&>);
static_assert(std::same_as<GotRow<NxMFString>, const VbString&>);
static_assert(std::same_as<GotRow<NxMFVec2f>, const VbVec2f&>);
static_assert(std::same_as<GotRow<NxMFVec2i32>, const VbVec2i32&>);
static_assert(std::same_as<GotRow<NxMFVec2s>, const VbVec2s&>);
static_assert(std::same_as<GotRow<NxMFVec3f>, const VbVec3f&>);
static_assert(std::same_as<GotRow<NxMFVec4f>, const VbVec4f&>);
static_assert(std::derived_from<NxSFFilePathString, NxSFString>);
static_assert(std::derived_from<NxMFColor, NxMFVec3f>);
static_assert(std::derived_from<NxMFColorRGBA, NxMFVec4f>);

} // namespace

// What each field class has of its own: defaults, typed access, and the text that follows from it.
class TestFieldClasses : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void defaultsAreThoseOfTheValueType()
    {
        QCOMPARE(textOf(NxSFFloat(nullptr, "f")), std::string("0"));
        QCOMPARE(textOf(NxSFBool(nullptr, "f")), std::string("false"));
        QCOMPARE(textOf(NxSFString(nullptr, "f")), std::string("\"\""));
        QCOMPARE(textOf(NxSFName(nullptr, "f")), std::string("\"\""));
        QCOMPARE(textOf(NxSFVec3f(nullptr, "f")), std::string("0 0 0"));
        QCOMPARE(textOf(NxSFColorRGBA(nullptr, "f")), std::string("0 0 0 1"));
        QCOMPARE(textOf(NxSFRotation(nullptr, "f")), std::string("0 0 1 0"));
        QCOMPARE(textOf(NxSFPlane(nullptr, "f")), std::string("0 0 1 0"));
        QCOMPARE(textOf(NxSFMatrix(nullptr, "f")), std::string("1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1"));
        QCOMPARE(textOf(NxMFRotation(nullptr, "f")), std::string("[]"));
        QCOMPARE(textOf(NxSFFloat(nullptr, "f", 2.5F)), std::string("2.5"));
        QCOMPARE(textOf(NxSFVec2s(nullptr, "f", VbVec2s(1, 2))), std::string("1 2"));
        QCOMPARE(textOf(NxMFString(nullptr, "f", {"a", "b"})), std::string("[\"a\", \"b\"]"));
    }

    void booleansAreZeroOrOne()
    {
        NxSFBool field(nullptr, "field", true);
        QCOMPARE(field.getValue(), 1);
        field.setValue(0);
        QCOMPARE(field.getValue(), 0);
        field.setValue(-7);
        QCOMPARE(field.getValue(), 1);
        QCOMPARE(textOf(field), std::string("true"));

        NxMFBool list(nullptr, "list", {true, false});
        QVERIFY(list[0]);
        QVERIFY(!list[1]);
        QVERIFY(list.set1Value(1, true));
        QCOMPARE(textOf(list), std::string("[true, true]"));
    }

    void numbersAreTakenAsTheyAre()
    {
        NxSFFloat single(nullptr, "field");
        single.setValue(0.1F);
        QCOMPARE(single.getValue(), 0.1F);
        QCOMPARE(textOf(single), std::string("0.1"));
        NxSFDouble wide(nullptr, "field");
        wide.setValue(0.1);
        QCOMPARE(textOf(wide), std::string("0.1"));
        wide.setValue(static_cast<double>(0.1F));
        QCOMPARE(textOf(wide), std::string("0.10000000149011612"));
        NxSFTime time(nullptr, "field");
        time.setValue(1e9 + 0.25);
        QCOMPARE(textOf(time), std::string("1000000000.25"));
        NxSFInt32 whole(nullptr, "field");
        whole.setValue(-5);
        QCOMPARE(whole.getValue(), -5);
        NxSFUInt32 positive(nullptr, "field");
        positive.setValue(4294967295U);
        QCOMPARE(textOf(positive), std::string("4294967295"));
        NxSFShort small(nullptr, "field");
        small.setValue(-32768);
        QCOMPARE(small.getValue(), short{-32768});
        NxSFUShort smallPositive(nullptr, "field");
        smallPositive.setValue(65535);
        QCOMPARE(textOf(smallPositive), std::string("65535"));
    }

    void textsAndNamesAreTaken()
    {
        NxSFFilePathString path(nullptr, "field");
        NxSFString& text = path;
        text.setValue("/a folder/\"b\"");
        QVERIFY(path.getValue() == VbString("/a folder/\"b\""));
        QCOMPARE(textOf(path), std::string("\"/a folder/\\\"b\\\"\""));
        QVERIFY(path.isOfType(NxSFString::getClassTypeId()));

        NxSFName name(nullptr, "field");
        name.setValue("na\xEFve");
        QVERIFY(name.getValue() == VbName("na\xEFve"));
        QCOMPARE(textOf(name), std::string("\"naïve\""));
        QVERIFY(name.set("œuvre") == false);
        QVERIFY(name.set("été"));
        QVERIFY(name.getValue() == VbName("\xE9t\xE9"));
    }

    void aNullTextIsAnEmptyOne()
    {
        NxSFString null(nullptr, "null");
        null.setValue(VbString(static_cast<const char*>(nullptr)));
        const NxSFString empty(nullptr, "empty");
        QVERIFY(null.getValue().isNull());
        QCOMPARE(textOf(null), std::string("\"\""));
        QVERIFY(null.isSame(empty));
    }

    void componentsAreTakenInOrder()
    {
        NxSFVec2f vec2f(nullptr, "field");
        vec2f.setValue(1, 2);
        QCOMPARE(textOf(vec2f), std::string("1 2"));
        NxSFVec2s vec2s(nullptr, "field");
        vec2s.setValue(1, -2);
        QCOMPARE(textOf(vec2s), std::string("1 -2"));
        NxSFVec2i32 vec2i32(nullptr, "field");
        vec2i32.setValue(100000, 2);
        QCOMPARE(textOf(vec2i32), std::string("100000 2"));
        NxSFVec3f vec3f(nullptr, "field");
        vec3f.setValue(1, 2, 3);
        QCOMPARE(textOf(vec3f), std::string("1 2 3"));
        vec3f.setValue(VbVec3f(4, 5, 6));
        QVERIFY(vec3f.getValue() == VbVec3f(4, 5, 6));
        NxSFVec3s vec3s(nullptr, "field");
        vec3s.setValue(1, 2, 3);
        QCOMPARE(textOf(vec3s), std::string("1 2 3"));
        NxSFVec4f vec4f(nullptr, "field");
        vec4f.setValue(1, 2, 3, 4);
        QCOMPARE(textOf(vec4f), std::string("1 2 3 4"));
        NxSFColor color(nullptr, "field");
        color.setValue(VbColor(0.25F, 0.5F, 2));
        QCOMPARE(textOf(color), std::string("0.25 0.5 2"));
        NxSFColorRGBA colorRGBA(nullptr, "field");
        colorRGBA.setValue(VbColorRGBA(0, 0.5F, 1, 0.25F));
        QCOMPARE(textOf(colorRGBA), std::string("0 0.5 1 0.25"));
    }

    void boxesTakeTheSmallerCornerFirst()
    {
        NxSFBox2f rectangle(nullptr, "field");
        rectangle.setValue(1, 2, 3, 4);
        QVERIFY(rectangle.getValue().getMin() == VbVec2f(1, 2));
        QVERIFY(rectangle.getValue().getMax() == VbVec2f(3, 4));
        QCOMPARE(textOf(rectangle), std::string("1 2 3 4"));
        NxSFBox3s box(nullptr, "field");
        box.setValue(1, 2, 3, 4, 5, 6);
        QVERIFY(box.getValue().getMin() == VbVec3s(1, 2, 3));
        QVERIFY(box.getValue().getMax() == VbVec3s(4, 5, 6));
        box.setValue(6, 5, 4, 3, 2, 1);
        QCOMPARE(textOf(box), std::string("6 5 4 3 2 1"));
    }

    void matricesAreTakenRowByRow()
    {
        NxSFMatrix field(nullptr, "field");
        field.setValue(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15);
        QCOMPARE(field.getValue()[1][2], 6.0F);
        QCOMPARE(field.getValue()[3][0], 12.0F);
        QCOMPARE(textOf(field), std::string("0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15"));
    }

    void rotationsAndPlanesAreTaken()
    {
        NxSFRotation rotation(nullptr, "field");
        rotation.setValue(VbRotation(VbVec3f(0, 3, 0), 7));
        QCOMPARE(textOf(rotation), std::string("0 3 0 7"));
        NxSFPlane plane(nullptr, "field");
        plane.setValue(VbPlane(VbVec3f(0, 3, 0), 7));
        QCOMPARE(textOf(plane), std::string("0 1 0 7"));
    }

    void listsTakeTypedRows()
    {
        NxMFVec2f vec2f(nullptr, "field", std::vector<VbVec2f>(1));
        QVERIFY(vec2f.set1Value(0, VbVec2f(1, 2)));
        QVERIFY(vec2f[0] == VbVec2f(1, 2));
        NxMFVec2s vec2s(nullptr, "field", std::vector<VbVec2s>(1));
        QVERIFY(vec2s.set1Value(0, VbVec2s(1, 2)));
        QVERIFY(vec2s[0] == VbVec2s(1, 2));
        NxMFVec2i32 vec2i32(nullptr, "field", std::vector<VbVec2i32>(1));
        QVERIFY(vec2i32.set1Value(0, VbVec2i32(1, 2)));
        QVERIFY(vec2i32[0] == VbVec2i32(1, 2));
        NxMFMatrix matrix(nullptr, "field", std::vector<VbMatrix>(1));
        QVERIFY(matrix.set1Value(0, VbMatrix(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15)));
        QCOMPARE(matrix[0][2][1], 9.0F);
        NxMFPlane plane(nullptr, "field", std::vector<VbPlane>(1));
        QVERIFY(plane.set1Value(0, VbPlane(VbVec3f(1, 0, 0), 2)));
        QCOMPARE(plane[0].getDistanceFromOrigin(), 2.0F);
        NxMFRotation rotation(nullptr, "field", std::vector<VbRotation>(1));
        QVERIFY(rotation.set1Value(0, VbRotation(VbVec3f(1, 0, 0), 2)));
        QCOMPARE(rotation[0].getAngle(), 2.0F);
        NxMFName name(nullptr, "field", std::vector<VbName>(1));
        QVERIFY(name.set1Value(0, VbName("a")));
        QVERIFY(name[0] == VbName("a"));
    }

    void colourListsServeAsVectorLists()
    {
        NxMFColor colors(nullptr, "field", std::vector<VbVec3f>(1));
        NxMFVec3f& vectors = colors;
        QVERIFY(vectors.set1Value(0, VbVec3f(1, 2, 3)));
        QVERIFY(colors.set1Value(0, VbColor(1, 2, 4)));
        QVERIFY(vectors[0] == VbVec3f(1, 2, 4));
        QVERIFY(colors.isOfType(NxMFVec3f::getClassTypeId()));
        NxMFColorRGBA transparent(nullptr, "field", std::vector<VbVec4f>(1));
        QVERIFY(transparent.set1Value(0, VbColorRGBA(1, 2, 3, 4)));
        QVERIFY(transparent[0] == VbVec4f(1, 2, 3, 4));
        QVERIFY(transparent.isOfType(NxMFVec4f::getClassTypeId()));
    }

    void negativeZeroIsNotZero()
    {
        const NxSFFloat zero(nullptr, "field", 0.0F);
        const NxSFFloat negative(nullptr, "field", -0.0F);
        QVERIFY(!zero.isSame(negative));
    }
};

QTEST_APPLESS_MAIN(TestFieldClasses)
#include "tst_FieldClasses.moc"
