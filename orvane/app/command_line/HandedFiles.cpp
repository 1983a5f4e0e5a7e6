#include "orvane/app/command_line/HandedFiles.h"

#include "orvane/app/instance/SocketFolder.h"
#include "orvane/app/window/MainWindow.h"

#include <QApplication>
#include <QEvent>

HandedFiles::HandedFiles(const QString& programVersion, MainWindow* window)
    : QObject(window)
    , m_window(window)
    , m_server(programVersion)
{
    window->installEventFilter(this);
    m_server.setRefusal(
        [this] { return m_window->isVisible() ? QString() : tr("The running window is being closed."); });
    connect(&m_server, &InstanceServer::handed, this, &HandedFiles::take);
}

orvane::Result<> HandedFiles::start(const SocketFolder& folder)
{
    return m_server.listen(folder.nameFor(QCoreApplication::applicationPid()));
}

bool HandedFiles::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::WindowActivate)
        m_server.noteUse();
    return false;
}

void HandedFiles::take(const HandedFile& file)
{
    raise(file.activationToken);
    if (file.fileName.isEmpty())
        return;
    // As if the user had opened it here, with the question about changes that aren't saved.
    m_window->openFile(file.fileName, [this, select = file.select](const orvane::Result<>& opened) {
        if (!opened || select.isEmpty())
            return;
        if (const auto selected = m_window->selectPath(select); !selected)
            m_window->showError(selected.error());
    });
}

void HandedFiles::raise(const QByteArray& activationToken)
{
    // The library takes it from there when a window asks to be activated.
    if (!activationToken.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", activationToken);
    m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    m_window->raise();
    m_window->activateWindow();
    // Where the desktop doesn't let a window come to the front by itself.
    QApplication::alert(m_window);
    qunsetenv("XDG_ACTIVATION_TOKEN");
}
