#pragma once

#include "orvane/app/instance/InstanceServer.h"

#include <QObject>

class MainWindow;
class SocketFolder;

/// Opens in the window what other processes hand to this one.
class HandedFiles : public QObject {
    Q_OBJECT

public:
    /// The window lives longer.
    HandedFiles(const QString& programVersion, MainWindow* window);

    /// Lets others find this window. Without a socket it works as before, and others open windows of their own.
    [[nodiscard]] orvane::Result<> start(const SocketFolder& folder);

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void take(const HandedFile& file);
    void raise(const QByteArray& activationToken);

    MainWindow* m_window;
    InstanceServer m_server;
};
