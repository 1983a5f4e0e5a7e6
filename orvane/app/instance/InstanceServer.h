#pragma once

#include "orvane/app/instance/HandedFile.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>

class QLocalServer;
class QLocalSocket;

/// Takes files that other processes of the same user hand to this one.
///
/// A sender gets its answer at once; what becomes of the file is seen in the window. Whoever sends something else, or
/// nothing for too long, is disconnected.
class InstanceServer : public QObject {
    Q_OBJECT

public:
    /// How many may be connected at a time.
    static constexpr int mostConnections = 8;

    explicit InstanceServer(QString programVersion, QObject* parent = nullptr);
    ~InstanceServer() override;

    /// Makes the socket and listens on it. A file that is in its place is left by a process that crashed, since names
    /// hold the number of the process.
    [[nodiscard]] orvane::Result<> listen(const QString& socket);
    /// How long a sender may take for its message.
    void setPatience(std::chrono::milliseconds patience) { m_patience = patience; }
    /// Asked before a file is taken: why that isn't possible now, or empty.
    void setRefusal(std::function<QString()> refusal) { m_refusal = std::move(refusal); }
    /// The window was used: it is the one that gets the next file.
    void noteUse() const;

Q_SIGNALS:
    void handed(const HandedFile& file);

private:
    void takeConnections();
    void read(QLocalSocket* socket);
    void answer(QLocalSocket* socket, const QByteArray& content);

    QString m_programVersion;
    std::unique_ptr<QLocalServer> m_server;
    std::chrono::milliseconds m_patience{5000};
    std::function<QString()> m_refusal;
    int m_connections = 0;
};
