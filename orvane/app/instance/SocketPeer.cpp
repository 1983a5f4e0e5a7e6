#include "orvane/app/instance/SocketPeer.h"

#include <QLocalSocket>

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

bool orvane::isPeerOfUser(const QLocalSocket& socket)
{
    ucred peer{};
    socklen_t size = sizeof peer;
    const auto descriptor = static_cast<int>(socket.socketDescriptor());
    return ::getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == ::geteuid();
}

bool orvane::isPeerWaiting(const QLocalSocket& socket)
{
    pollfd entry{static_cast<int>(socket.socketDescriptor()), POLLRDHUP, 0};
    return ::poll(&entry, 1, 0) == 0;
}
