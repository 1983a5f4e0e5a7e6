#include "orvane/app/fields/values/FieldLimits.h"

#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/list/NxMFRotation.h"
#include "meridane/scene/fields/single/NxSFRotation.h"

#include <algorithm>
#include <cmath>

namespace orvane {

bool hasFacts(const NxField& field, int component)
{
    constexpr int angle = 3;
    const NxType type = field.getTypeId();
    const bool isRotation
        = type.isDerivedFrom(NxSFRotation::getClassTypeId()) || type.isDerivedFrom(NxMFRotation::getClassTypeId());
    return !isRotation || component == angle;
}

NumberLimits limitsOf(const NxField& field, int component)
{
    NumberLimits limits;
    const auto* const components = meridane::FieldComponents::of(field);
    if (components == nullptr)
        return limits;
    limits.isWhole = components->isWhole();
    if (limits.isWhole) {
        limits.hardMinimum = components->lowest();
        limits.hardMaximum = components->highest();
    }
    if (!hasFacts(field, component)) {
        limits.mayBeInfinite = !limits.isWhole;
        return limits;
    }
    const NxFieldFacts& facts = meridane::factsOf(field);
    // Limits are inclusive.
    const double least
        = facts.excludesMinimum ? std::nextafter(facts.hardMinimum, NumberLimits::none) : facts.hardMinimum;
    const double most
        = facts.excludesMaximum ? std::nextafter(facts.hardMaximum, -NumberLimits::none) : facts.hardMaximum;
    limits.hardMinimum = std::max(limits.hardMinimum, least);
    limits.hardMaximum = std::min(limits.hardMaximum, most);
    limits.softMinimum = facts.softMinimum;
    limits.softMaximum = facts.softMaximum;
    limits.step = facts.step;
    limits.isAngle = facts.unit == NxUnit::Radians;
    limits.mayBeInfinite = !limits.isWhole && !facts.hasHardRange();
    return limits;
}

} // namespace orvane
