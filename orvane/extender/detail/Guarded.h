#pragma once

#include <QString>

#include <exception>
#include <optional>

namespace orvane {

/// What the exception says that is being handled, in one line.
[[nodiscard]] inline QString exceptionText()
{
    try {
        throw;
    } catch (const std::exception& exception) {
        return QString::fromUtf8(exception.what()).simplified();
    } catch (...) {
        return QStringLiteral("of unknown kind");
    }
}

/// Calls a plug-in's code and returns the message of an exception, since none may leave the plug-in.
template <typename Call>
[[nodiscard]] std::optional<QString> guarded(const Call& call)
{
    try {
        call();
        return std::nullopt;
    } catch (...) {
        return exceptionText();
    }
}

} // namespace orvane
