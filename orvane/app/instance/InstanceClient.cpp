#include "orvane/app/instance/InstanceClient.h"

#include "orvane/app/instance/SocketPeer.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QLocalSocket>

#include <utility>

namespace {

/// So many windows are asked at most.
constexpr qsizetype mostAsked = 8;

int remaining(const QDeadlineTimer& deadline)
{
    return static_cast<int>(deadline.remainingTime());
}

/// The answer that has come so far, or nothing.
orvane::Result<std::optional<HandedAnswer>> readAnswer(QByteArray& received)
{
    const auto content = orvane::takeHandedContent(received);
    if (!content)
        return orvane::Failure{content.error()};
    if (!content.value())
        return std::optional<HandedAnswer>();
    const auto answer = HandedAnswer::fromContent(*content.value());
    if (!answer)
        return orvane::Failure{answer.error()};
    return std::optional<HandedAnswer>(answer.value());
}

/// Waits for an answer as long as the deadline allows.
HandedAnswer awaitAnswer(QLocalSocket& socket, const QDeadlineTimer& deadline)
{
    QByteArray received;
    for (;;) {
        received += socket.readAll();
        const auto answer = readAnswer(received);
        if (!answer)
            return {false, answer.error()};
        if (answer.value())
            return *answer.value();
        if (!socket.waitForReadyRead(remaining(deadline)) && socket.bytesAvailable() == 0)
            return {false, QStringLiteral("The running window doesn't answer.")};
    }
}

/// What one window says; nothing if nobody listens there.
std::optional<HandedAnswer> ask(const QString& name, const QByteArray& message, const QDeadlineTimer& deadline)
{
    QLocalSocket socket;
    socket.connectToServer(name);
    if (!socket.waitForConnected(remaining(deadline))) {
        if (socket.error() == QLocalSocket::ConnectionRefusedError)
            QFile::remove(name); // of a process that crashed
        if (socket.error() == QLocalSocket::SocketTimeoutError)
            return HandedAnswer{false, QStringLiteral("The running window doesn't answer.")};
        return std::nullopt;
    }
    if (!orvane::isPeerOfUser(socket))
        return HandedAnswer{false, QStringLiteral("The window is another user's.")};
    socket.write(message);
    return awaitAnswer(socket, deadline);
}

} // namespace

InstanceClient::InstanceClient(SocketFolder folder, std::chrono::milliseconds patience)
    : m_folder(std::move(folder))
    , m_patience(patience)
{
}

InstanceClient::Result InstanceClient::hand(const HandedFile& file) const
{
    const QByteArray message = file.toBytes();
    if (message.size() > orvane::longestHandedContent)
        return {Outcome::Refused, QStringLiteral("The name of the file is too long.")};
    const QDeadlineTimer deadline(m_patience);
    Result result;
    for (const QString& socket : m_folder.sockets().mid(0, mostAsked)) {
        const auto answer = ask(socket, message, deadline);
        if (answer && answer->taken)
            return {Outcome::Taken, {}};
        if (answer && result.reason.isEmpty())
            result = {Outcome::Refused, answer->reason};
        if (deadline.hasExpired())
            break;
    }
    return result;
}
