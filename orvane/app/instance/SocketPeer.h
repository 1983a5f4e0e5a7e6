#pragma once

class QLocalSocket;

namespace orvane {

/// Whether the process at the other end belongs to the same user.
[[nodiscard]] bool isPeerOfUser(const QLocalSocket& socket);
/// Whether the process at the other end still waits for an answer.
[[nodiscard]] bool isPeerWaiting(const QLocalSocket& socket);

} // namespace orvane
