#include "FieldEditors/FieldRangeTable.h"

#include <array>

namespace {

struct Row {
    const char* nodeName;
    const char* fieldName;
    const char* lower;
    const char* upper;
    const char* type; // "f" float, "d" double, "i" integer
    const char* bounded; // hard bounds unless "0"
};

// The editors choose a row by the type of the field's container, so the last three are never asked for; they are kept
// beside the one that is read, with the same numbers.
constexpr std::array<Row, 7> rows{{
    {"DefaultNode", "floatField", "0.0", "10.0", "f", "0"},
    {"DefaultNode", "doubleField", "0.0", "10.0", "d", "0"},
    {"DefaultNode", "intField", "0", "100", "i", "0"},
    {"Complexity", "value", "0.0", "1.0", "f", "1"},
    {"Complexity", "textureQuality", "0.0", "1.0", "f", "1"},
    {"DirectionalLight", "intensity", "0.0", "1.0", "f", "1"},
    {"Material", "transparency", "0.0", "1.0", "f", "1"},
}};

QString keyOf(const char* nodeName, const char* fieldName)
{
    return QString::fromLatin1(nodeName) + QString::fromLatin1(fieldName);
}

int toInteger(const QString& text)
{
    return text.toInt(nullptr, FieldRangeTable::detectRadix(text));
}

FieldRange parse(const Row& row)
{
    const QString lower = QString::fromLatin1(row.lower);
    const QString upper = QString::fromLatin1(row.upper);
    const QString type = QString::fromLatin1(row.type);
    FieldRange range;
    if (type == QLatin1String("f")) {
        range.floatMax = upper.toFloat();
        range.floatMin = lower.toFloat();
    } else if (type == QLatin1String("d")) {
        range.doubleMax = static_cast<float>(upper.toDouble());
        range.doubleMin = static_cast<float>(lower.toDouble());
    } else if (type == QLatin1String("i")) {
        range.intMax = toInteger(upper);
        range.intMin = toInteger(lower);
    }
    range.bounded = QString::fromLatin1(row.bounded).toInt() != 0;
    return range;
}

} // namespace

FieldRangeTable::FieldRangeTable()
{
    for (const Row& row : rows)
        m_ranges.insert(keyOf(row.nodeName, row.fieldName), parse(row));
}

FieldRange FieldRangeTable::lookup(const char* nodeName, const char* fieldName) const
{
    return m_ranges.value(keyOf(nodeName, fieldName));
}

int FieldRangeTable::detectRadix(const QString& text)
{
    if (text.size() >= 3)
        return text.startsWith(QLatin1String("0x")) ? 16 : 10;

    if (text.size() == 2)
        return text.startsWith(QLatin1Char('0')) ? 8 : 10;

    return 10;
}
