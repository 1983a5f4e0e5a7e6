#pragma once

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxField.h"

#include <string>

/// The text of a field's value.
inline std::string textOf(const NxField& field)
{
    VbString text;
    field.get(text);
    return std::string(text.view());
}
