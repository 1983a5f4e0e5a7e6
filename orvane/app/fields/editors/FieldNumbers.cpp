#include "orvane/app/fields/editors/FieldNumbers.h"

#include "orvane/app/base/TextConversion.h"
#include "orvane/app/input/NumberLimits.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldContainer.h"

#include <algorithm>
#include <bit>
#include <cstdint>

using meridane::FieldComponents;

namespace orvane {

QString componentText(const NxField& field, int component)
{
    const FieldComponents* const components = FieldComponents::of(field);
    return plainNumber(components->get(field, 0, component), components->number());
}

QString letterOf(const NxField& field, int component)
{
    const std::string_view name = FieldComponents::of(field)->name(component);
    if (name.starts_with("min "))
        return QChar::fromLatin1(name.back()) + QStringLiteral("₁");
    if (name.starts_with("max "))
        return QChar::fromLatin1(name.back()) + QStringLiteral("₂");
    if (name == "angle")
        return QStringLiteral("∠");
    if (name == "distance")
        return QStringLiteral("d");
    return toQString(name);
}

look::Tint tintOf(const NxField& field, int component)
{
    const std::string_view name = FieldComponents::of(field)->name(component);
    switch (name.empty() ? 'w' : name.back()) {
    case 'x':
    case 'r':
        return look::Tint::AxisX;
    case 'y':
        return look::Tint::AxisY;
    case 'g':
        return name.size() == 1 ? look::Tint::AxisY : look::Tint::AxisW;
    case 'z':
    case 'b':
        return look::Tint::AxisZ;
    default:
        return look::Tint::AxisW;
    }
}

QString accessibleNameOf(const NxField& field, int component)
{
    const NxFieldContainer* const node = field.getContainer();
    QString name = node != nullptr ? toQString(node->getFieldName(&field)) : QString();
    if (const FieldComponents* const components = FieldComponents::of(field); components != nullptr && component >= 0)
        name += u' ' + toQString(components->name(component));
    return name.trimmed();
}

bool isComponentMixed(const FieldSet& fields, int component)
{
    const FieldComponents* const components = FieldComponents::of(fields.first());
    const auto bits
        = [&](const NxField& field) { return std::bit_cast<std::uint64_t>(components->get(field, 0, component)); };
    const std::uint64_t first = bits(fields.first());
    const std::span<NxField* const> all = fields.fields();
    return std::any_of(all.begin(), all.end(), [&](const NxField* field) { return bits(*field) != first; });
}

} // namespace orvane
