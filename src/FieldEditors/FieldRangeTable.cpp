#include "FieldEditors/FieldRangeTable.h"

#include <QByteArray>

#include <algorithm>
#include <array>
#include <string_view>

namespace {

constexpr FieldRange boundedFloat(float upper)
{
    FieldRange range;
    range.floatMax = upper;
    range.bounded = true;
    return range;
}

constexpr FieldRange growingFloat(float upper)
{
    FieldRange range;
    range.floatMax = upper;
    return range;
}

constexpr FieldRange growingDouble(float upper)
{
    FieldRange range;
    range.doubleMax = upper;
    return range;
}

constexpr FieldRange growingInteger(int upper)
{
    FieldRange range;
    range.intMax = upper;
    return range;
}

struct Row {
    std::string_view key; // the name of the node, directly followed by that of the field
    FieldRange range;
};

// Sorted by key. All lower bounds are 0.
// Contract: an editor chooses its row by the type of the field's node, so only one row of Complexity, Material and
// DirectionalLight is used. The others have the same numbers.
constexpr auto rows = std::to_array<Row>({
    {"ComplexitytextureQuality", boundedFloat(1)},
    {"Complexityvalue", boundedFloat(1)},
    {"DefaultNodedoubleField", growingDouble(10)},
    {"DefaultNodefloatField", growingFloat(10)},
    {"DefaultNodeintField", growingInteger(100)},
    {"DirectionalLightintensity", boundedFloat(1)},
    {"Materialtransparency", boundedFloat(1)},
});
static_assert(std::ranges::is_sorted(rows, {}, &Row::key));

} // namespace

FieldRange FieldRangeTable::lookup(const char* nodeName, const char* fieldName)
{
    const QByteArray names = QByteArray(nodeName) + fieldName;
    const std::string_view key = names.constData();
    const auto* const row = std::ranges::lower_bound(rows, key, {}, &Row::key);
    return row != rows.end() && row->key == key ? row->range : FieldRange();
}

int FieldRangeTable::detectRadix(const QString& text)
{
    if (text.size() >= 3)
        return text.startsWith(QLatin1String("0x")) ? 16 : 10;

    if (text.size() == 2)
        return text.startsWith(QLatin1Char('0')) ? 8 : 10;

    return 10;
}
