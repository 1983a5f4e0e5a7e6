#include "orvane/app/compare/DifferenceText.h"

#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"

namespace orvane {

using Side = NxSceneDifferences::Side;

QString kindText(NxSceneDifference::Kind kind)
{
    return QLatin1String(NxSceneDifferences::kindName(kind));
}

QString pathText(const NxSceneDifferences& differences, const NxSceneDifference& difference)
{
    const std::string field = differences.fieldName(difference);
    return oneLine(toQString(differences.path(difference) + (field.empty() ? field : '.' + field)));
}

QString sideText(const NxSceneDifferences& differences, const NxSceneDifference& difference, Side side)
{
    constexpr std::size_t shownLength = 200; // bytes
    return oneLine(toQString(differences.text(difference, side, shownLength)));
}

QString differenceLine(const NxSceneDifferences& differences, const NxSceneDifference& difference)
{
    constexpr QChar tab = u'\t';
    return kindText(difference.kind) + tab + pathText(differences, difference) + tab
        + sideText(differences, difference, Side::Left) + tab + sideText(differences, difference, Side::Right);
}

} // namespace orvane
