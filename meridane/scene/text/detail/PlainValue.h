#pragma once

#include "meridane/base/values/VbMatrix.h"
#include "meridane/base/values/VbPlane.h"
#include "meridane/base/values/VbRotation.h"
#include "meridane/base/values/VbVec.h"

#include <concepts>

namespace meridane {

/// Values that consist of numbers alone and may have any bits, so that they can be copied as bytes. The other values
/// are flags, texts, names, and the values of enumerations.
template <typename Value>
concept PlainValue = std::floating_point<Value> ||(std::integral<Value> && !std::same_as<Value, bool>)
    || std::same_as<Value, VbRotation> || std::same_as<Value, VbPlane> || std::same_as<Value, VbMatrix> || requires
{
    typename Value::Component;
    requires std::derived_from<Value, VecBase<Value, typename Value::Component, Value::count>>;
};

} // namespace meridane
