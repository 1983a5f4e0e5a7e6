#pragma once

#include "meridane/base/VbString.h"

#include <QString>

namespace orvane {

// Text crosses as UTF-16, Qt's own form, so that the toolkit is the one that judges what is valid: a lone surrogate
// becomes U+FFFD.

/// The toolkit's text as Qt's, NUL characters included; null for a null text.
[[nodiscard]] inline QString toQString(const VbString& text)
{
    if (text.isNull())
        return {};
    return QStringView(text.toUtf16(), text.getLength()).toString();
}

/// Qt's text as the toolkit's, up to the first NUL character. A null text becomes an empty one.
[[nodiscard]] inline VbString toVbString(const QString& text)
{
    return VbString().fromUtf16(text.utf16());
}

} // namespace orvane
