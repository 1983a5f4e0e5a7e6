#include "orvane/app/instance/InstanceServer.h"

#include "orvane/app/instance/SocketFolder.h"
#include "orvane/app/instance/SocketPeer.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QTimer>

#include <utility>

InstanceServer::InstanceServer(QString programVersion, QObject* parent)
    : QObject(parent)
    , m_programVersion(std::move(programVersion))
    , m_server(std::make_unique<QLocalServer>())
{
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    m_server->setMaxPendingConnections(mostConnections);
    connect(m_server.get(), &QLocalServer::newConnection, this, &InstanceServer::takeConnections);
}

InstanceServer::~InstanceServer() = default;

orvane::Result<> InstanceServer::listen(const QString& socket)
{
    QLocalServer::removeServer(socket);
    if (!m_server->listen(socket))
        return orvane::Failure{m_server->errorString()};
    return {};
}

void InstanceServer::noteUse() const
{
    if (m_server->isListening())
        SocketFolder::touch(m_server->fullServerName());
}

void InstanceServer::takeConnections()
{
    while (QLocalSocket* const socket = m_server->nextPendingConnection()) {
        if (m_connections >= mostConnections || !orvane::isPeerOfUser(*socket)) {
            socket->abort();
            socket->deleteLater();
            continue;
        }
        ++m_connections;
        // Another byte than the longest message has, so that more than that is seen.
        socket->setReadBufferSize(orvane::longestHandedContent + 64);
        connect(socket, &QObject::destroyed, this, [this] { --m_connections; });
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { read(socket); });
        QTimer::singleShot(m_patience, socket, &QLocalSocket::abort);
        read(socket);
    }
}

// What has come stays in the socket's buffer until the message is whole.
void InstanceServer::read(QLocalSocket* socket)
{
    QByteArray received = socket->peek(socket->bytesAvailable());
    const auto content = orvane::takeHandedContent(received);
    if (!content)
        socket->abort();
    else if (content.value())
        answer(socket, *content.value());
}

void InstanceServer::answer(QLocalSocket* socket, const QByteArray& content)
{
    disconnect(socket, &QLocalSocket::readyRead, this, nullptr);
    // A sender that has lost its patience opens the file itself.
    if (!orvane::isPeerWaiting(*socket)) {
        socket->abort();
        return;
    }
    const auto file = HandedFile::fromContent(content);
    QString reason = file.error();
    if (file && file.value().programVersion != m_programVersion)
        reason = QStringLiteral("The running window is of version %1, this is version %2.")
                     .arg(m_programVersion, file.value().programVersion);
    else if (file && m_refusal)
        reason = m_refusal();
    socket->write(HandedAnswer{reason.isEmpty(), reason}.toBytes());
    socket->disconnectFromServer(); // when it is written
    if (reason.isEmpty())
        Q_EMIT handed(file.value());
}
