#pragma once

#include "meridane/base/VbString.h"

#include <QFile>
#include <QString>

#include <string>
#include <string_view>

/// Carries text between Qt and the toolkit, both ways without loss.
[[nodiscard]] inline QString toQString(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

[[nodiscard]] inline QString toQString(const VbString& text)
{
    return toQString(text.view());
}

[[nodiscard]] inline VbString toVbString(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    return VbString(std::string_view(utf8.constData(), static_cast<std::size_t>(utf8.size())));
}

/// A file name as the toolkit takes it.
[[nodiscard]] inline std::string toStdFileName(const QString& fileName)
{
    return QFile::encodeName(fileName).toStdString();
}
