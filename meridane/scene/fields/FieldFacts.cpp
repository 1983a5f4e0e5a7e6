#include "meridane/scene/fields/FieldFacts.h"

namespace meridane {

std::string_view symbolOf(NxUnit unit) noexcept
{
    switch (unit) {
    case NxUnit::Radians:
        return "rad";
    case NxUnit::Metres:
        return "m";
    case NxUnit::Percent:
        return "%";
    case NxUnit::Seconds:
        return "s";
    case NxUnit::None:
        break;
    }
    return {};
}

} // namespace meridane
