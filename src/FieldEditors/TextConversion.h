#pragma once

#include "meridane/base/VbString.h"

#include <QString>

namespace orvane {

/// The toolkit's text as Qt's, by way of UTF-16; null for a null text.
[[nodiscard]] QString toQString(const VbString& text);
/// Qt's text as the toolkit's, by way of UTF-16, up to the first NUL character.
[[nodiscard]] VbString toVbString(const QString& text);

} // namespace orvane
