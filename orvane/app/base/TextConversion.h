#pragma once

#include "orvane/extender/VbText.h"

#include <QByteArray>
#include <QString>

#include <string>
#include <string_view>

namespace orvane {

/// The toolkit's text in UTF-8 as Qt's.
[[nodiscard]] inline QString toQString(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// A file name as the toolkit takes it: the bytes that the system knows it by.
[[nodiscard]] std::string toStdFileName(const QString& fileName);
/// The reverse. Each byte that isn't UTF-8 becomes half of a surrogate pair (U+DC80 to U+DCFF), so that the name isn't
/// lost. The files behind such names can be reached with the toolkit's functions only, not with Qt's.
[[nodiscard]] QString fromStdFileName(std::string_view bytes);

/// The name with the folders from the root on, without "." and ".."; empty for the empty name.
[[nodiscard]] QString absoluteFileName(const QString& fileName);

/// An absolute file name as a URL.
[[nodiscard]] QByteArray toFileUrl(const QString& fileName);
/// The reverse; empty for what is no local file.
[[nodiscard]] QString fromFileUrl(const QByteArray& url);

} // namespace orvane
