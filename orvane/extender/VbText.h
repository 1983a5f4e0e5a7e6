#pragma once

#include "meridane/base/VbString.h"

#include <QString>

#include <string_view>

namespace orvane {

/// The toolkit's text as Qt's.
[[nodiscard]] inline QString toQString(const VbString& text)
{
    const std::string_view utf8 = text.view();
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// Qt's text as the toolkit's, NUL characters included. A null text becomes an empty one.
[[nodiscard]] inline VbString toVbString(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    return VbString(std::string_view(utf8.constData(), static_cast<std::size_t>(utf8.size())));
}

} // namespace orvane
