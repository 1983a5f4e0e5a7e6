#include "FieldCatalogue.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/list/NxMFBool.h"
#include "meridane/scene/fields/list/NxMFColor.h"
#include "meridane/scene/fields/list/NxMFColorRGBA.h"
#include "meridane/scene/fields/list/NxMFDouble.h"
#include "meridane/scene/fields/list/NxMFEnum.h"
#include "meridane/scene/fields/list/NxMFFloat.h"
#include "meridane/scene/fields/list/NxMFInt32.h"
#include "meridane/scene/fields/list/NxMFMatrix.h"
#include "meridane/scene/fields/list/NxMFName.h"
#include "meridane/scene/fields/list/NxMFPlane.h"
#include "meridane/scene/fields/list/NxMFRotation.h"
#include "meridane/scene/fields/list/NxMFShort.h"
#include "meridane/scene/fields/list/NxMFString.h"
#include "meridane/scene/fields/list/NxMFUInt32.h"
#include "meridane/scene/fields/list/NxMFUShort.h"
#include "meridane/scene/fields/list/NxMFVec2f.h"
#include "meridane/scene/fields/list/NxMFVec2i32.h"
#include "meridane/scene/fields/list/NxMFVec2s.h"
#include "meridane/scene/fields/list/NxMFVec3f.h"
#include "meridane/scene/fields/list/NxMFVec4f.h"
#include "meridane/scene/fields/single/NxSFBitMask.h"
#include "meridane/scene/fields/single/NxSFBool.h"
#include "meridane/scene/fields/single/NxSFBox2f.h"
#include "meridane/scene/fields/single/NxSFBox3s.h"
#include "meridane/scene/fields/single/NxSFColor.h"
#include "meridane/scene/fields/single/NxSFColorRGBA.h"
#include "meridane/scene/fields/single/NxSFDouble.h"
#include "meridane/scene/fields/single/NxSFEnum.h"
#include "meridane/scene/fields/single/NxSFFilePathString.h"
#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/fields/single/NxSFImage.h"
#include "meridane/scene/fields/single/NxSFInt32.h"
#include "meridane/scene/fields/single/NxSFMatrix.h"
#include "meridane/scene/fields/single/NxSFName.h"
#include "meridane/scene/fields/single/NxSFPlane.h"
#include "meridane/scene/fields/single/NxSFRotation.h"
#include "meridane/scene/fields/single/NxSFShort.h"
#include "meridane/scene/fields/single/NxSFString.h"
#include "meridane/scene/fields/single/NxSFTime.h"
#include "meridane/scene/fields/single/NxSFUInt32.h"
#include "meridane/scene/fields/single/NxSFUShort.h"
#include "meridane/scene/fields/single/NxSFVec2f.h"
#include "meridane/scene/fields/single/NxSFVec2i32.h"
#include "meridane/scene/fields/single/NxSFVec2s.h"
#include "meridane/scene/fields/single/NxSFVec3f.h"
#include "meridane/scene/fields/single/NxSFVec3s.h"
#include "meridane/scene/fields/single/NxSFVec4f.h"
#include "meridane/scene/nodes/NxNode.h"
#include "meridane/scene/text/NxEnumeration.h"

#include <QTest>

#include <type_traits>

namespace {

template <typename Field>
class CatalogueNode final : public NxNode {
public:
    CatalogueNode()
        : m_field(makeField())
    {
    }

    [[nodiscard]] NxType getTypeId() const override
    {
        static const std::string name = std::string("CatalogueNodeOf") + Field::getClassTypeId().getName().getString();
        static const NxType type = NxType::registerClass(name.c_str(), NxNode::getClassTypeId(), &make<NxTypedObject>);
        return type;
    }
    [[nodiscard]] NxFieldData* getFieldData() override
    {
        static NxFieldData data(&make<NxFieldContainer>);
        return &data;
    }

    template <typename Base>
    static Base* make()
    {
        return new CatalogueNode;
    }

private:
    Field makeField()
    {
        if constexpr (std::is_base_of_v<NxSFEnum, Field> || std::is_same_v<NxMFEnum, Field>)
            return Field(this, "field", catalogueEnumeration());
        else
            return Field(this, "field");
    }

    Field m_field;
};

template <typename Value, typename Format>
void setRandomValue(meridane::SingleField<Value, Format>& field, RandomValues& random)
{
    Value value{};
    random.fill(value);
    field.setValue(value);
}

template <typename Value, typename Format>
void setRandomValue(meridane::ListField<Value, Format>& field, RandomValues& random)
{
    std::vector<Value> values(random.below(20));
    for (Value& value : values)
        random.fill(value);
    field.setValues(std::move(values));
}

void setRandomValue(NxSFImage& field, RandomValues& random)
{
    const VbVec2s size(static_cast<short>(1 + random.below(5)), static_cast<short>(1 + random.below(5)));
    const auto components = static_cast<int>(1 + random.below(4));
    std::vector<unsigned char> bytes(static_cast<std::size_t>(size[0] * size[1] * components));
    for (unsigned char& byte : bytes)
        random.fill(byte);
    QVERIFY(field.setValue(size, components, std::move(bytes)));
}

using Accepted = std::vector<FieldKind::Accepted>;
using Refused = std::vector<std::string>;

template <typename Field>
FieldKind kindOf(Accepted accepted, Refused refused)
{
    return {Field::getClassTypeId(), [] { return NxRef<NxFieldContainer>(new CatalogueNode<Field>); },
        [](NxField& field, RandomValues& random) { setRandomValue(dynamic_cast<Field&>(field), random); },
        std::move(accepted), std::move(refused)};
}

const Accepted real{{"1", "1"}, {"+1.50", "1.5"}, {" -2\t", "-2"}, {"1e3", "1000"}, {".5", "0.5"}, {"5.", "5"},
    {"inf", "inf"}, {"-Infinity", "-inf"}, {"nan", "nan"}, {"-nan", "-nan"}, {"+NaN", "nan"}, {"nan(0x1)", "nan(0x1)"},
    {"-NAN(0X02aB)", "-nan(0x2ab)"}, {"-0", "-0"}, {"1e-999", "0"}, {"-1e-999999999999999999999", "-0"}};
const Refused notReal{"", " ", "\"\"", "x", "1 2", "1,", "1x", "+", "-", "+-1", "--1", "0x10", "1e", "1e999",
    "1e999999999999999999999", "[1]", "1.2.3", "1#", "nanx", "na", "nan(", "nan()", "nan(zz_9)", "nan(1)", "nan(0x)",
    "nan(0x0)", "nan(0xg)", "nan(0x-1)", "nan(0x1", "nan(0x1)x", "nan (0x1)", "nan( 0x1)", "nan(0x10000000000000)",
    "+-nan", "inf(0x1)"};

Accepted whole(const std::string& min, const std::string& max)
{
    return {
        {"7", "7"}, {" +7 ", "7"}, {"0x1f", "31"}, {"0X1F", "31"}, {"007", "7"}, {min, min}, {max, max}, {"-0", "0"}};
}
Refused notWhole(const std::string& below, const std::string& above)
{
    return {"", "\"\"", "x", "1.5", "1e2", "1 2", "1,", "0x", "0xg", "+-1", "- 1", "0x-1", "99999999999999999999999",
        below, above};
}

// The same texts for a list, whose own syntax is tested beside.
Accepted inList(const Accepted& values)
{
    Accepted result{{"[]", "[]"}, {" [ ] ", "[]"}};
    std::string all;
    std::string allCanonical;
    for (const auto& [text, canonical] : values) {
        result.push_back({text, "[" + canonical + "]"});
        all += (all.empty() ? "" : " , ") + text;
        allCanonical += (allCanonical.empty() ? "" : ", ") + canonical;
    }
    result.push_back({"[" + all + "]", "[" + allCanonical + "]"});
    return result;
}
Refused inList(const Refused& values, const std::string& good)
{
    Refused result{"[", "]", "[]]", "[[]]", "[,]", "[" + good + ",]", "[," + good + "]", "[" + good, good + "]",
        "[" + good + ",," + good + "]", "[" + good + "] " + good};
    for (const std::string& value : values) {
        // A value of the list that no single value is.
        if (value == "1 2" || value == "[1]" || value.find_first_not_of(' ') == std::string::npos)
            continue;
        result.push_back(value);
        result.push_back("[" + good + ", " + value + "]");
    }
    return result;
}

std::string joined(std::initializer_list<std::string_view> parts)
{
    std::string text;
    for (const std::string_view part : parts)
        text += part;
    return text;
}

// Vectors and the like: a number of components.
Accepted components(std::size_t count)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i)
        text.append(i > 0 ? " " : "").append(std::to_string(i + 1));
    return {{text, text}, {joined({"\t", text, " "}), text}};
}
Refused notComponents(std::size_t count)
{
    const std::string text = components(count).front().text;
    const std::string shorter = text.substr(0, text.rfind(' '));
    return {"", "\"\"", shorter, text + " 1", shorter + " x", text + ",", shorter + ", 1", joined({"(", text, ")"}),
        shorter + " 1e999"};
}
Refused notComponentsInList(std::size_t count)
{
    const std::string text = components(count).front().text;
    const std::string shorter = text.substr(0, text.rfind(' '));
    return {"", "[", joined({"[", text}), joined({"[", text, ",]"}), joined({"[", text, " 1]"}),
        joined({"[", shorter, "]"}), joined({text, " 1"}), joined({text, ", ", text})};
}

const Accepted boolean{
    {"true", "true"}, {"TRUE", "true"}, {"1", "true"}, {"false", "false"}, {" FALSE ", "false"}, {"0", "false"}};
const Refused notBoolean{"", "\"\"", "yes", "True", "2", "-1", "true false", "truefalse", "true,"};

const Accepted text{{"", R"("")"}, {R"("")", R"("")"}, {"plain words, [all]", R"("plain words, [all]")"},
    {R"("a \"b\" \\ \n \t")", R"("a \"b\" \\ \n \t")"}, {"  kept  ", R"("  kept  ")"},
    {"it's \"so\"", R"("it's \"so\"")"}, {"\"é\" ", "\"é\""}};
const Refused notText{R"(")", R"("open)", R"("a" b)", R"("a""b")", R"("\q")", R"("\)"};
const Accepted texts{{"[]", "[]"}, {R"("")", R"([""])"}, {"word", R"(["word"])"}, {"[a, b c]", R"(["a", "b", "c"])"},
    {R"(["a, b" ,c])", R"(["a, b", "c"])"}};
const Refused notTexts{"", "two words", R"([")", R"(["a)", "[a", "[a,]", "[,a]", "[a]]", R"(["\q"])", "a,b"};

const Accepted enumerated{{"Filled", "Filled"}, {" Lines ", "Lines"}, {"1", "Filled"}, {"-5", "Low"}, {"17", "17"},
    {"-3", "-3"}, {"0x11", "17"}};
const Refused notEnumerated{
    "", "\"\"", "filled", "Fill", "Filledx", "Filled Lines", "Filled |", "\"Filled\"", "1.5", "99999999999", "1x"};

std::vector<FieldKind> makeCatalogue()
{
    std::vector<FieldKind> kinds;
    const auto add = [&kinds]<typename Field>(std::type_identity<Field>, Accepted accepted, Refused refused) {
        kinds.push_back(kindOf<Field>(std::move(accepted), std::move(refused)));
    };

    add(std::type_identity<NxSFFloat>(), real, notReal);
    add(std::type_identity<NxSFDouble>(), real, notReal);
    add(std::type_identity<NxSFTime>(), real, notReal);
    add(std::type_identity<NxSFInt32>(), whole("-2147483648", "2147483647"), notWhole("-2147483649", "2147483648"));
    add(std::type_identity<NxSFUInt32>(), whole("0", "4294967295"), notWhole("-1", "4294967296"));
    add(std::type_identity<NxSFShort>(), whole("-32768", "32767"), notWhole("-32769", "0x8000"));
    add(std::type_identity<NxSFUShort>(), whole("0", "65535"), notWhole("-1", "65536"));
    add(std::type_identity<NxSFBool>(), boolean, notBoolean);
    add(std::type_identity<NxSFString>(), text, notText);
    add(std::type_identity<NxSFFilePathString>(), text, notText);
    Refused notName = notText;
    notName.insert(notName.end(), {"Ω", "\"日\"", "🙂"});
    add(std::type_identity<NxSFName>(), text, notName);
    add(std::type_identity<NxSFColor>(), components(3), notComponents(3));
    add(std::type_identity<NxSFColorRGBA>(), components(4), notComponents(4));
    add(std::type_identity<NxSFVec2f>(), components(2), notComponents(2));
    add(std::type_identity<NxSFVec2s>(), components(2), notComponents(2));
    add(std::type_identity<NxSFVec2i32>(), components(2), notComponents(2));
    add(std::type_identity<NxSFVec3f>(), components(3), notComponents(3));
    add(std::type_identity<NxSFVec3s>(), components(3), notComponents(3));
    add(std::type_identity<NxSFVec4f>(), components(4), notComponents(4));
    add(std::type_identity<NxSFRotation>(), components(4), notComponents(4));
    add(std::type_identity<NxSFPlane>(), {{"0 0 2 5", "0 0 1 5"}, {"0 1 0 -3", "0 1 0 -3"}}, notComponents(4));
    add(std::type_identity<NxSFMatrix>(), components(16), notComponents(16));
    add(std::type_identity<NxSFBox2f>(), components(4), notComponents(4));
    add(std::type_identity<NxSFBox3s>(), components(6), notComponents(6));
    add(std::type_identity<NxSFEnum>(), enumerated, notEnumerated);
    add(std::type_identity<NxSFBitMask>(),
        {{"Filled", "Filled"}, {"Filled|Points", "Filled | Points"}, {"Points | Filled", "Filled | Points"},
            {"Filled | Lines", "Both"}, {"0", "None"}, {"None | Points", "Points"}, {"0x11", "Filled | 0x10"},
            {"Points | 0x100 | 0x2", "Lines | Points | 0x100"}, {"-5", "Low"}, {"0x80000000", "0x80000000"}},
        {"", "\"\"", "|", "Filled |", "| Filled", "Filled || Lines", "Filled Lines", "filled", "0x100000000",
            "Filled, Lines"});
    add(std::type_identity<NxSFImage>(),
        {{"0 0 0", "0 0 0"}, {"1 1 3 0xFF8000", "1 1 3 0xff8000"}, {" 2 1 1 0 255 ", "2 1 1 0x00 0xff"},
            {"1 2 4 0xffffffff 1", "1 2 4 0xffffffff 0x00000001"}, {"2 1 2 0xabcd\t0x1", "2 1 2 0xabcd 0x0001"}},
        {"", "\"\"", "0 0", "0 0 0 0", "1 1 3", "1 1 0", "1 0 0", "0 0 1", "1 1 5 0", "-1 -1 1 0", "1 1 1 0x100",
            "1 1 3 0x1000000", "1 1 4 0x100000000", "2 1 1 0", "1 1 1 0 0", "1 1 1 -1", "32767 32767 4 0",
            "40000 1 1 0", "1 1 1 x", "1 1 1,0"});

    add(std::type_identity<NxMFFloat>(), inList(real), inList(notReal, "1"));
    add(std::type_identity<NxMFDouble>(), inList(real), inList(notReal, "1"));
    add(std::type_identity<NxMFInt32>(), inList(whole("-2147483648", "2147483647")),
        inList(notWhole("-2147483649", "2147483648"), "1"));
    add(std::type_identity<NxMFUInt32>(), inList(whole("0", "4294967295")), inList(notWhole("-1", "4294967296"), "1"));
    add(std::type_identity<NxMFShort>(), inList(whole("-32768", "32767")), inList(notWhole("-32769", "32768"), "1"));
    add(std::type_identity<NxMFUShort>(), inList(whole("0", "65535")), inList(notWhole("-1", "65536"), "1"));
    add(std::type_identity<NxMFBool>(), inList(boolean), {"", "\"\"", "[true", "[true,]", "[yes]", "true false"});
    add(std::type_identity<NxMFString>(), texts, notTexts);
    Refused notNames = notTexts;
    notNames.insert(notNames.end(), {"Ω", "[a, \"日\"]"});
    add(std::type_identity<NxMFName>(), texts, notNames);
    add(std::type_identity<NxMFColor>(), inList(components(3)), notComponentsInList(3));
    add(std::type_identity<NxMFColorRGBA>(), inList(components(4)), notComponentsInList(4));
    add(std::type_identity<NxMFVec2f>(), inList(components(2)), notComponentsInList(2));
    add(std::type_identity<NxMFVec2s>(), inList(components(2)), notComponentsInList(2));
    add(std::type_identity<NxMFVec2i32>(), inList(components(2)), notComponentsInList(2));
    add(std::type_identity<NxMFVec3f>(), {{"[1 2 3 4 5 6]", "[1 2 3, 4 5 6]"}, {"1 2 3", "[1 2 3]"}},
        notComponentsInList(3));
    add(std::type_identity<NxMFVec4f>(), inList(components(4)), notComponentsInList(4));
    add(std::type_identity<NxMFRotation>(), inList(components(4)), notComponentsInList(4));
    add(std::type_identity<NxMFPlane>(), {{"[0 0 2 5, 0 1 0 1]", "[0 0 1 5, 0 1 0 1]"}}, notComponentsInList(4));
    add(std::type_identity<NxMFMatrix>(), inList(components(16)), notComponentsInList(16));
    add(std::type_identity<NxMFEnum>(), inList(enumerated), inList(Refused{"filled", "Filled |", "1.5"}, "Filled"));
    return kinds;
}

} // namespace

const std::vector<FieldKind>& fieldCatalogue()
{
    static const std::vector<FieldKind> catalogue = makeCatalogue();
    return catalogue;
}

NxField& fieldOf(const NxRef<NxFieldContainer>& node)
{
    return *node->getFields().front();
}

void addFieldKindRows()
{
    QTest::addColumn<const FieldKind*>("kind");
    for (const FieldKind& kind : fieldCatalogue())
        QTest::newRow(kind.type.getName().getString()) << &kind;
}

const NxEnumeration& catalogueEnumeration()
{
    static const NxEnumeration enumeration{
        {"None", 0}, {"Filled", 1}, {"Lines", 2}, {"Points", 4}, {"Both", 3}, {"Low", -5}};
    return enumeration;
}
