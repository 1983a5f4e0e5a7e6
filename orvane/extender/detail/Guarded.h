#pragma once

#include <QString>

#include <exception>
#include <optional>

namespace orvane {

/// Calls a plug-in's code and returns the message of an exception, since none may leave the plug-in.
template <typename Call>
[[nodiscard]] std::optional<QString> guarded(const Call& call)
{
    try {
        call();
        return std::nullopt;
    } catch (const std::exception& exception) {
        return QString::fromUtf8(exception.what()).simplified();
    } catch (...) {
        return QStringLiteral("of unknown kind");
    }
}

} // namespace orvane
