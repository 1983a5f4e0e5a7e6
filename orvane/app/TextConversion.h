#pragma once

#include "orvane/extender/VbText.h"

#include <QFile>
#include <QString>

#include <string>
#include <string_view>

namespace orvane {

/// The toolkit's text in UTF-8 as Qt's.
[[nodiscard]] inline QString toQString(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// A file name as the toolkit takes it.
[[nodiscard]] inline std::string toStdFileName(const QString& fileName)
{
    return QFile::encodeName(fileName).toStdString();
}

} // namespace orvane
