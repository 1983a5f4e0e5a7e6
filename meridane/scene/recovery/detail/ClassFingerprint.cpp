#include "meridane/scene/recovery/detail/ClassFingerprint.h"

#include "meridane/base/ContentHash.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxField.h"

#include <span>

namespace meridane {

std::uint64_t hashOfDefault(const NxField& field)
{
    VbString text;
    field.get(text);
    return shortHashOf(std::as_bytes(std::span(text.view())));
}

} // namespace meridane
