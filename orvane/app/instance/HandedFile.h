#pragma once

#include "orvane/app/base/Result.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// What a program that is started asks a running one to do, and the answer, as bytes on a local socket.
///
/// A message has a mark of four bytes, its length in four bytes, and then a version and the content. What comes in is
/// checked completely before it is used: it may be of another version, cut off, or of a program that is no orvane.
struct HandedFile {
    /// Of the sender: only equal versions understand one another for sure.
    QString programVersion;
    /// Absolute; empty to show the window alone.
    QString fileName;
    /// The path of a node or a field that is to be selected; may be empty.
    QString select;
    /// What the desktop gave the sender, so that a window may come to the front; may be empty.
    QByteArray activationToken;

    [[nodiscard]] QByteArray toBytes() const;
    /// Fails if the content of a message is none of these.
    [[nodiscard]] static orvane::Result<HandedFile> fromContent(const QByteArray& content);

    bool operator==(const HandedFile&) const = default;
};

/// The answer of the running program.
struct HandedAnswer {
    bool taken = false;
    /// Why it isn't, as a sentence.
    QString reason;

    [[nodiscard]] QByteArray toBytes() const;
    [[nodiscard]] static orvane::Result<HandedAnswer> fromContent(const QByteArray& content);

    bool operator==(const HandedAnswer&) const = default;
};

namespace orvane {

/// The longest content of a message in bytes: a few names of files.
inline constexpr qsizetype longestHandedContent = qsizetype{64} << 10;

/// Takes the first message out of what was received: its content; nothing as long as it isn't there as a whole. Fails
/// at what can't be the beginning of a message.
[[nodiscard]] Result<std::optional<QByteArray>> takeHandedContent(QByteArray& received);

} // namespace orvane
