#pragma once

#include "meridane/base/values/VbName.h"
#include "meridane/base/values/VbString.h"

#include <QString>

namespace orvane {

// Texts are passed as UTF-16, Qt's own form, so that only the toolkit decides what is valid: a lone surrogate becomes
// U+FFFD. Names are passed as Latin-1, which is all that a name can hold.

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

/// A name as Qt's text.
[[nodiscard]] inline QString toQString(const VbName& name)
{
    return QString::fromLatin1(name.getString());
}

/// Qt's text as a name, up to the first NUL character. A character outside Latin-1 becomes a question mark.
[[nodiscard]] inline VbName toVbName(const QString& text)
{
    return {text.toLatin1().constData()};
}

} // namespace orvane
