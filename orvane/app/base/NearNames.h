#pragma once

#include <QStringList>

namespace orvane {

/// The names that a mistyped one may have meant, the likeliest first, at most three: those that differ only in upper
/// and lower case or in few letters, or of which it is a part.
[[nodiscard]] QStringList nearNames(const QString& typed, const QStringList& names);

} // namespace orvane
