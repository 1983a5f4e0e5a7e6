#include "orvane/app/input/NumberLimits.h"

#include "orvane/app/base/TextConversion.h"

#include "meridane/query/NumberText.h"
#include "meridane/scene/fields/NxFieldData.h"

#include <algorithm>
#include <cmath>

namespace orvane {

namespace {

constexpr double beyondReach = 1e30;

} // namespace

QString plainNumber(double number, meridane::FieldComponents::Number type)
{
    return toQString(meridane::numberText(number, type));
}

NumberLimits NumberLimits::of(const NxField& field, int component)
{
    NumberLimits limits;
    const auto* const components = meridane::FieldComponents::of(field);
    if (components == nullptr || component < 0 || component >= components->count())
        return limits;
    limits.hardMinimum = components->lowest();
    limits.hardMaximum = components->highest();
    limits.isWhole = components->isWhole();
    limits.mayBeInfinite = !limits.isWhole;
    const bool isRotation = components->name(components->count() - 1) == "angle";
    if (isRotation && component < components->count() - 1)
        return limits; // what is declared of a rotation holds for its angle
    const NxFieldFacts& facts = meridane::factsOf(field);
    limits.validMinimum = facts.excludesMinimum ? std::nextafter(facts.hardMinimum, none) : facts.hardMinimum;
    limits.validMaximum = facts.excludesMaximum ? std::nextafter(facts.hardMaximum, -none) : facts.hardMaximum;
    limits.softMinimum = facts.softMinimum;
    limits.softMaximum = facts.softMaximum;
    limits.step = facts.step;
    limits.isAngle = isRotation || facts.unit == NxUnit::Radians;
    return limits;
}

NumberLimits::Range NumberLimits::rangeOf(double number) const
{
    if (!refusal(number).isEmpty())
        return Range::Impossible;
    if (number < validMinimum || number > validMaximum)
        return Range::Senseless;
    return number < softMinimum || number > softMaximum ? Range::Unusual : Range::Usual;
}

QString NumberLimits::refusal(double number) const
{
    if (!std::isfinite(number)) {
        return mayBeInfinite
            ? QString()
            : tr("%1 isn't a number that fits here. Enter %2.").arg(plainNumber(number), description());
    }
    if (isWhole && number != std::trunc(number))
        return tr("%1 has a fraction. Enter %2.").arg(plainNumber(number), description());
    if (number < hardMinimum)
        return outOfReach(tr("%1 is too small.").arg(plainNumber(number)), tr("The least is %1."), hardMinimum);
    if (number > hardMaximum)
        return outOfReach(tr("%1 is too large.").arg(plainNumber(number)), tr("The greatest is %1."), hardMaximum);
    return {};
}

// A bound that the description leaves out is given by itself.
QString NumberLimits::outOfReach(const QString& problem, const QString& boundText, double bound) const
{
    return std::abs(bound) < beyondReach ? tr("%1 Enter %2.").arg(problem, description())
                                         : problem + u' ' + boundText.arg(plainNumber(bound));
}

QString NumberLimits::description() const
{
    QString kind = isWhole ? tr("a whole number") : tr("a number");
    const bool hasMinimum = hardMinimum > -beyondReach;
    const bool hasMaximum = hardMaximum < beyondReach;
    if (hasMinimum && hasMaximum)
        return tr("%1 from %2 to %3").arg(kind, plainNumber(hardMinimum), plainNumber(hardMaximum));
    if (hasMinimum)
        return tr("%1 of at least %2").arg(kind, plainNumber(hardMinimum));
    if (hasMaximum)
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
