#include "orvane/app/fields/values/FactsText.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/list/NxMFEnum.h"
#include "meridane/scene/fields/single/NxSFBitMask.h"

#include <QCoreApplication>
#include <QStringList>

#include <cmath>

namespace orvane {
namespace {

struct FactsTextTexts {
    Q_DECLARE_TR_FUNCTIONS(FactsText)
};

QString limitText(double limit)
{
    constexpr int digits = 6;
    return QString::number(limit, 'g', digits);
}

QString limitsText(double minimum, bool excludesMinimum, double maximum, bool excludesMaximum)
{
    const bool hasMinimum = std::isfinite(minimum);
    const bool hasMaximum = std::isfinite(maximum);
    const QString least = (excludesMinimum ? FactsTextTexts::tr("above %1") : FactsTextTexts::tr("at least %1"))
                              .arg(limitText(minimum));
    const QString greatest
        = (excludesMaximum ? FactsTextTexts::tr("below %1") : FactsTextTexts::tr("at most %1")).arg(limitText(maximum));
    if (hasMinimum && hasMaximum && !excludesMinimum && !excludesMaximum)
        return FactsTextTexts::tr("%1 to %2").arg(limitText(minimum), limitText(maximum));
    if (hasMinimum && hasMaximum)
        return FactsTextTexts::tr("%1 and %2").arg(least, greatest);
    return hasMinimum ? least : hasMaximum ? greatest : QString();
}

template <typename Field>
QStringList enumerationNames(const Field& field)
{
    int count = 0;
    int* values = nullptr;
    VbName* names = nullptr;
    field.getEnums(count, values, names);
    QStringList result;
    for (int i = 0; i < count; ++i)
        result.append(QString::fromUtf8(names[i].getString()));
    return result;
}

QString choicesText(const NxField& field)
{
    if (const auto* const mask = dynamic_cast<const NxSFBitMask*>(&field))
        return enumerationNames(*mask).join(QStringLiteral(" | "));
    if (const auto* const choice = dynamic_cast<const NxSFEnum*>(&field))
        return enumerationNames(*choice).join(QStringLiteral(", "));
    if (const auto* const list = dynamic_cast<const NxMFEnum*>(&field))
        return enumerationNames(*list).join(QStringLiteral(", "));
    return {};
}

} // namespace

QString rangeText(const NxField& field, const NxFieldFacts& facts)
{
    const QString hard = limitsText(facts.hardMinimum, facts.excludesMinimum, facts.hardMaximum, facts.excludesMaximum);
    const bool isNarrower = facts.softMinimum > facts.hardMinimum || facts.softMaximum < facts.hardMaximum;
    QStringList parts{choicesText(field), hard};
    if (isNarrower) {
        parts.append(
            FactsTextTexts::tr("useful %1")
                .arg(limitsText(facts.softMinimum, facts.excludesMinimum && facts.softMinimum == facts.hardMinimum,
                    facts.softMaximum, facts.excludesMaximum && facts.softMaximum == facts.hardMaximum)));
    }
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

QString unitText(NxUnit unit)
{
    switch (unit) {
    case NxUnit::Radians:
        return FactsTextTexts::tr("radians");
    case NxUnit::Metres:
        return FactsTextTexts::tr("metres");
    case NxUnit::Percent:
        return FactsTextTexts::tr("per cent");
    case NxUnit::Seconds:
        return FactsTextTexts::tr("seconds");
    case NxUnit::None:
        break;
    }
    return {};
}

} // namespace orvane
