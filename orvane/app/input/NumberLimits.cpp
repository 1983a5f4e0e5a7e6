#include "orvane/app/input/NumberLimits.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace orvane {

QString plainNumber(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

NumberLimits::Range NumberLimits::rangeOf(double number) const
{
    if (!refusal(number).isEmpty())
        return Range::Impossible;
    const bool usual = std::isnan(number) || (number >= softMinimum && number <= softMaximum);
    return usual ? Range::Usual : Range::Unusual;
}

QString NumberLimits::refusal(double number) const
{
    if (!std::isfinite(number)) {
        return mayBeInfinite
            ? QString()
            : tr("%1 isn't a number that fits here. Needed is %2.").arg(plainNumber(number), description());
    }
    if (isWhole && number != std::trunc(number))
        return tr("%1 has a fraction. Needed is %2.").arg(plainNumber(number), description());
    if (number < hardMinimum)
        return tr("%1 is too small. Needed is %2.").arg(plainNumber(number), description());
    if (number > hardMaximum)
        return tr("%1 is too large. Needed is %2.").arg(plainNumber(number), description());
    return {};
}

QString NumberLimits::description() const
{
    const QString kind = isWhole ? tr("a whole number") : tr("a number");
    if (std::isfinite(hardMinimum) && std::isfinite(hardMaximum))
        return tr("%1 from %2 to %3").arg(kind, plainNumber(hardMinimum), plainNumber(hardMaximum));
    if (std::isfinite(hardMinimum))
        return tr("%1 of at least %2").arg(kind, plainNumber(hardMinimum));
    if (std::isfinite(hardMaximum))
        return tr("%1 of at most %2").arg(kind, plainNumber(hardMaximum));
    return kind;
}

double NumberLimits::stepFrom(double value) const
{
    if (step > 0)
        return step;
    constexpr double smallest = 0.001;
    constexpr double largest = 1e30;
    const double size = std::isfinite(value) ? std::clamp(std::abs(value), smallest, largest) : 1.0;
    const double fitting = value == 0 ? 0.1 : std::pow(10.0, std::floor(std::log10(size)) - 1);
    return isWhole ? std::max(1.0, std::floor(fitting)) : fitting;
}

} // namespace orvane
