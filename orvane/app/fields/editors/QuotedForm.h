#pragma once

#include "orvane/app/base/TextConversion.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/text/ValueText.h"

#include <string>

namespace orvane {

/// The text form of a field of text with that value.
[[nodiscard]] inline QString quotedForm(const QString& text)
{
    std::string form;
    meridane::writeValue(form, toVbString(text));
    return toQString(form);
}

} // namespace orvane
