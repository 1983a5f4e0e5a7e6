#include "orvane/app/WindowRun.h"

#include "orvane/app/MainWindow.h"
#include "orvane/app/SceneDocument.h"
#include "orvane/app/SceneEdit.h"
#include "orvane/app/SearchFolders.h"
#include "orvane/app/Session.h"
#include "orvane/app/SetFieldCommand.h"

#include "meridane/base/NxDelayQueue.h"

#include <QApplication>
#include <QEventLoop>
#include <QPixmap>
#include <QTimer>

#include <chrono>
#include <cstdio>

WindowRun::WindowRun(CommandLine commandLine)
    : m_commandLine(std::move(commandLine))
{
}

int WindowRun::run()
{
    Session session(m_commandLine.noSettings ? AppSettings::Mode::None : AppSettings::Mode::File);
    MainWindow window(session);
    prepare(session, window);
    if (m_commandLine.size.isValid())
        window.resize(m_commandLine.size);
    showSoon(window);
    openFile(window);
    if (m_commandLine.file.isEmpty() && !m_commandLine.screenshotFile.isEmpty())
        QTimer::singleShot(0, this, [this, &window] { takePicture(window); });
    connect(&window, &MainWindow::settled, this, [this, &session, &window](const QString& error) {
        // Only the first time: what the user opens later is the user's own affair.
        disconnect(&window, &MainWindow::settled, this, nullptr);
        if (error.isEmpty())
            applyTo(session, window);
        else
            m_failed = true;
        if (m_commandLine.screenshotFile.isEmpty())
            return;
        if (!error.isEmpty())
            std::fprintf(stderr, "orvane: %s\n", qPrintable(error));
        takePicture(window);
    });
    const int status = QApplication::exec();
    return m_commandLine.screenshotFile.isEmpty() || !m_failed ? status : 1;
}

void WindowRun::showSoon(MainWindow& window)
{
    if (m_commandLine.file.isEmpty()) {
        window.show();
        return;
    }
    // A small scene is there before the user would have seen anything: the window's first picture shows it at once.
    constexpr std::chrono::milliseconds patience(50);
    connect(&window, &MainWindow::settled, &window, &QWidget::show, Qt::SingleShotConnection);
    QTimer::singleShot(patience, &window, &QWidget::show);
}

void WindowRun::prepare(Session& session, MainWindow& window)
{
    session.loadPreferences();
    const QStringList plugins = OrvPluginsManager::findPlugins(orvane::pluginFolders()) + m_commandLine.plugins;
    QStringList messages = session.loadPlugins(plugins);
    messages += session.loadProfiles(orvane::profileFolders());
    if (const auto failure = session.activateProfile(m_commandLine.profile))
        messages += *failure;
    for (const QString& message : messages)
        report(window, message);
}

void WindowRun::openFile(MainWindow& window)
{
    if (!m_commandLine.file.isEmpty())
        QTimer::singleShot(0, &window, [this, &window] { window.openFile(m_commandLine.file); });
}

void WindowRun::applyTo(Session& session, MainWindow& window)
{
    for (const CommandLine::Assignment& assignment : m_commandLine.assignments) {
        NxField* field = nullptr;
        if (const auto failure = orvane::findAssignedField(window.document().scene(), assignment, field))
            report(window, *failure);
        else
            session.services().pushCommand(new SetFieldCommand(field, VbString(assignment.text.toStdString())));
    }
    if (m_commandLine.select.isEmpty())
        return;
    const QString failure = window.selectPath(m_commandLine.select);
    if (!failure.isEmpty())
        report(window, failure);
}

void WindowRun::report(MainWindow& window, const QString& message)
{
    m_failed = true;
    window.showError(message);
    if (!m_commandLine.screenshotFile.isEmpty())
        std::fprintf(stderr, "orvane: %s\n", qPrintable(message));
}

void WindowRun::takePicture(MainWindow& window)
{
    window.startView();
    // Layouts settle, editors fill and the view tells what it can't draw from events and from the sensors' queue, and
    // either may cause the other.
    QEventLoop loop;
    while (loop.processEvents() || !NxDelayQueue::getDefault().isEmpty()) { }
    if (!m_failed && !window.grab().save(m_commandLine.screenshotFile)) {
        m_failed = true;
        std::fprintf(stderr, "orvane: %s: the picture can't be written\n", qPrintable(m_commandLine.screenshotFile));
    }
    // Not quit, which closes the windows and so asks about changes that aren't saved: the picture is all that was
    // wanted.
    QCoreApplication::exit(0);
}
