#pragma once

#include "orvane/app/base/TextConversion.h"

#include <QString>

#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace orvane {

/// The reason why something failed: a message for the user in one line.
struct Failure {
    QString message;
};

/// What an operation returns that may fail: its value, or the message of the failure.
///
/// A function returns either `value` or `Failure{message}`, and its caller passes a failure on with
/// `return Failure{result.error()}`.
template <typename T = void>
class [[nodiscard]] Result {
public:
    // Implicit, so that functions can return either.
    Result(T value)
        : m_content(std::move(value))
    {
    }
    Result(Failure failure)
        : m_content(std::move(failure))
    {
    }

    /// True when there is a value.
    explicit operator bool() const noexcept { return std::holds_alternative<T>(m_content); }
    /// The value. There must be one.
    [[nodiscard]] const T& value() const& { return std::get<T>(m_content); }
    [[nodiscard]] T&& value() && { return std::get<T>(std::move(m_content)); }
    /// The message of the failure; empty when there is a value.
    [[nodiscard]] QString error() const
    {
        const Failure* const failure = std::get_if<Failure>(&m_content);
        return failure != nullptr ? failure->message : QString();
    }

private:
    std::variant<T, Failure> m_content;
};

/// What an operation without a value returns: success, or the message of the failure.
template <>
class [[nodiscard]] Result<void> {
public:
    Result() = default;
    Result(Failure failure)
        : m_failure(std::move(failure))
    {
    }

    /// True for success.
    explicit operator bool() const noexcept { return !m_failure; }
    /// The message of the failure; empty for success.
    [[nodiscard]] QString error() const { return m_failure ? m_failure->message : QString(); }

private:
    std::optional<Failure> m_failure;
};

/// Makes a result of the toolkit's form of one: a message in UTF-8, or nothing for success.
[[nodiscard]] inline Result<> toResult(const std::optional<std::string>& failure)
{
    return failure ? Result<>(Failure{toQString(*failure)}) : Result<>();
}

/// The same for a message in Qt's form.
[[nodiscard]] inline Result<> toResult(const std::optional<QString>& failure)
{
    return failure ? Result<>(Failure{*failure}) : Result<>();
}

} // namespace orvane
