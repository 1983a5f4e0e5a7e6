#include "orvane/app/command_line/WindowRun.h"

#include "orvane/app/base/SearchFolders.h"
#include "orvane/app/command_line/BatchRun.h"
#include "orvane/app/command_line/FieldAccess.h"
#include "orvane/app/command_line/PictureFile.h"
#include "orvane/app/command_line/StandardOutput.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/scene/SetFieldCommand.h"
#include "orvane/app/window/MainWindow.h"

#include "meridane/base/NxDelayQueue.h"

#include <QApplication>
#include <QEventLoop>
#include <QPixmap>
#include <QTimer>

#include <chrono>

WindowRun::WindowRun(CommandLine commandLine)
    : m_commandLine(std::move(commandLine))
{
}

int WindowRun::run()
{
    if (const auto mistake = findMistake()) {
        orvane::printError(*mistake);
        return 1;
    }
    Session session(m_commandLine.noSettings ? AppSettings::Mode::None : AppSettings::Mode::File);
    MainWindow window(session);
    prepare(session, window);
    if (m_commandLine.size.isValid())
        window.resize(m_commandLine.size);
    if (takesPicture())
        connect(&window, &MainWindow::imageFolderRefused, this, [](const QString& folder) {
            orvane::printError(
                tr("%1: The scene refers to images in this folder, outside its own. They aren't loaded; open the scene "
                   "in a window to allow it.")
                    .arg(folder));
        });
    showSoon(window);
    QTimer::singleShot(0, &window, [this, &session, &window] { start(session, window); });
    const int status = QApplication::exec();
    return takesPicture() && m_failed ? 1 : status;
}

std::optional<QString> WindowRun::findMistake() const
{
    if (!takesPicture())
        return std::nullopt;
    if (auto mistake = orvane::checkPictureName(m_commandLine.screenshotFile))
        return mistake;
    const QSize pixels = m_commandLine.size * qApp->devicePixelRatio();
    if (m_commandLine.size.isValid() && !CommandLine::isUsableSize(pixels))
        return QStringLiteral("The picture would have %1x%2 pixels, which is too large.")
            .arg(pixels.width())
            .arg(pixels.height());
    return std::nullopt;
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

void WindowRun::start(Session& session, MainWindow& window)
{
    if (m_commandLine.file.isEmpty()) {
        if (takesPicture())
            finish(session, window);
        return;
    }
    window.openFile(m_commandLine.file, [this, &session, &window](const QString& failure) {
        // At once, while the scene that is open is the one of this file.
        if (failure.isEmpty())
            applyTo(session, window);
        else
            reportNotOpened(window, failure);
        if (takesPicture())
            connect(
                &window, &MainWindow::settled, this, [this, &session, &window] { finish(session, window); },
                Qt::SingleShotConnection);
    });
}

void WindowRun::reportNotOpened(MainWindow& window, const QString& failure)
{
    m_failed = true; // the window shows why
    if (takesPicture())
        orvane::printError(failure);
    if (!m_commandLine.assignments.isEmpty() || !m_commandLine.select.isEmpty())
        report(window,
            tr("%1 wasn't opened, so what the command line sets and selects is left out.").arg(m_commandLine.file));
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
    if (takesPicture())
        orvane::printError(message);
}

void WindowRun::finish(Session& session, MainWindow& window)
{
    if (!m_failed) {
        if (const auto failure = writeAll(session, window)) {
            m_failed = true;
            orvane::printError(*failure);
        }
    }
    // Not quit, which closes the windows and so asks about changes that aren't saved: all that was wanted is done.
    QCoreApplication::exit(0);
}

std::optional<QString> WindowRun::writeAll(Session& session, MainWindow& window)
{
    orvane::StandardOutput output;
    BatchRun others(m_commandLine, output.stream());
    others.listExtensions(session);
    auto failure = others.writeOutput(NxRef<NxGroup>(window.document().scene()));
    const auto outputFailure = output.finish();
    if (failure || outputFailure)
        return failure ? failure : outputFailure;
    window.startView();
    // Layouts settle, editors fill and the view tells what it can't draw from events and from the sensors' queue, and
    // either may cause the other.
    QEventLoop loop;
    while (loop.processEvents() || !NxDelayQueue::getDefault().isEmpty() || window.isLoadingImages()) {
        if (window.isLoadingImages())
            loop.processEvents(QEventLoop::WaitForMoreEvents);
    }
    return orvane::writePicture(window.grab(), m_commandLine.screenshotFile);
}
