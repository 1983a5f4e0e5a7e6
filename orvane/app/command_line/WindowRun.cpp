#include "orvane/app/command_line/WindowRun.h"

#include "orvane/app/base/SearchFolders.h"
#include "orvane/app/command_line/BatchRun.h"
#include "orvane/app/command_line/FieldAccess.h"
#include "orvane/app/command_line/HandedFiles.h"
#include "orvane/app/command_line/PictureRun.h"
#include "orvane/app/command_line/StandardOutput.h"
#include "orvane/app/instance/NewWindow.h"
#include "orvane/app/instance/SocketFolder.h"
#include "orvane/app/language/Language.h"
#include "orvane/app/recovery/RecoveryFolder.h"
#include "orvane/app/scene/SceneDocument.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/scene/SetFieldCommand.h"
#include "orvane/app/settings/SettingsStore.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/picture/PictureFile.h"
#include "orvane/app/window/MainWindow.h"

#include "meridane/base/NxDelayQueue.h"

#include <QApplication>
#include <QEventLoop>
#include <QPixmap>
#include <QTimer>

#include <chrono>

using orvane::Failure;
using orvane::Result;

WindowRun::WindowRun(CommandLine commandLine)
    : m_commandLine(std::move(commandLine))
{
}

int WindowRun::run()
{
    if (const auto usable = checkPicture(); !usable) {
        orvane::printError(usable.error());
        return m_commandLine.failureStatus();
    }
    Session session(m_commandLine.settingsMode(), m_commandLine.settingsFileName());
    // Before the first widget, so that no text is set twice.
    SettingsStore& settings = SettingsStore::of(session.settings());
    const QString language = QStringLiteral("look/language");
    settings.follow(language, this, [&settings, language] { orvane::Language::use(settings.text(language)); });
    MainWindow window(session);
    prepare(session, window);
    if (!takesPicture())
        window.followDesktop();
    if (!takesPicture() && settings.isOn(QStringLiteral("recovery/isOn")))
        window.startRecovery(RecoveryFolder());
    if (m_commandLine.size.isValid())
        window.resize(m_commandLine.size);
    if (takesPicture())
        connect(&window, &MainWindow::imageFolderRefused, this, &orvane::printRefusedFolder);
    if (m_commandLine.watch)
        settings.overrule(QStringLiteral("files/reloadsByItself"), true, QStringLiteral("--watch"));
    if (!takesPicture())
        joinOthers(window);
    if (!takesPicture() && !m_commandLine.noSettings)
        window.keepPictures();
    showSoon(window);
    QTimer::singleShot(0, &window, [this, &session, &window] { start(session, window); });
    const int status = QApplication::exec();
    if (!takesPicture())
        return status;
    return m_failed ? m_commandLine.failureStatus() : m_status;
}

Result<> WindowRun::checkPicture() const
{
    if (!takesPicture())
        return {};
    if (auto name = orvane::checkPictureName(m_commandLine.screenshotFile); !name)
        return name;
    const QSize pixels = m_commandLine.size * qApp->devicePixelRatio();
    if (m_commandLine.size.isValid() && !CommandLine::isUsableSize(pixels))
        return Failure{QStringLiteral("The picture would have %1x%2 pixels, which is too large.")
                           .arg(pixels.width())
                           .arg(pixels.height())};
    return {};
}

void WindowRun::joinOthers(MainWindow& window)
{
    NewWindow::setOptions(m_commandLine.windowOptions());
    auto* const handedFiles = new HandedFiles(QCoreApplication::applicationVersion(), &window);
    // The window doesn't wait for it.
    QTimer::singleShot(0, handedFiles, [handedFiles] {
        const auto folder = SocketFolder::open();
        const auto started = folder ? handedFiles->start(folder.value()) : Failure{folder.error()};
        if (!started)
            qInfo("orvane: Other processes can't hand files to this window: %s", qUtf8Printable(started.error()));
    });
}

void WindowRun::showSoon(MainWindow& window)
{
    if (m_commandLine.file.isEmpty()) {
        window.show();
        return;
    }
    // A small scene is read within this time, so that the window's first picture shows it.
    constexpr std::chrono::milliseconds patience(50);
    connect(&window, &MainWindow::settled, &window, &QWidget::show, Qt::SingleShotConnection);
    QTimer::singleShot(patience, &window, &QWidget::show);
}

void WindowRun::prepare(Session& session, MainWindow& window)
{
    session.loadPreferences();
    const QString chosenFolder = SettingsStore::of(session.settings()).text(QStringLiteral("plugins/folder"));
    const QStringList found
        = m_commandLine.noPlugins ? QStringList() : OrvPluginsManager::findPlugins(orvane::pluginFolders(chosenFolder));
    QStringList messages = session.loadPlugins(found, m_commandLine.plugins);
    messages += session.loadProfiles(orvane::profileFolders());
    if (const auto activated = session.activateProfile(m_commandLine.profile); !activated)
        messages += activated.error();
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
    window.openFile(m_commandLine.file, [this, &session, &window](const Result<>& opened) {
        // At once, while the scene that is open is the one of this file.
        if (opened)
            applyTo(session, window);
        else
            reportNotOpened(window, opened.error());
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
        const auto field = orvane::findAssignedField(window.document().scene(), assignment);
        if (field)
            session.services().pushCommand(new SetFieldCommand(field.value(), VbString(assignment.text.toStdString())));
        else
            report(window, field.error());
    }
    if (m_commandLine.select.isEmpty())
        return;
    if (const auto selected = window.selectPath(m_commandLine.select); !selected)
        report(window, selected.error());
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
        if (const auto written = writeAll(session, window); !written) {
            m_failed = true;
            orvane::printError(written.error());
        }
    }
    // Not quit, which would close the window and ask about changes that aren't saved.
    QCoreApplication::exit(0);
}

Result<> WindowRun::writeAll(Session& session, MainWindow& window)
{
    orvane::StandardOutput output;
    BatchRun others(m_commandLine, output.stream());
    others.listExtensions(session);
    const auto result = others.writeOutput(NxRef<NxGroup>(window.document().scene()));
    m_status = others.status();
    const auto written = output.finish();
    if (!result || !written)
        return result ? written : result;
    window.startView();
    if (auto* const view = window.findChild<SceneView*>(); view != nullptr)
        view->pictures().setAlwaysFull(true);
    QPixmap picture;
    do {
        // Events and the sensors' queue update layouts, editors and the view's messages, and each may cause the other.
        QEventLoop loop;
        while (loop.processEvents() || !NxDelayQueue::getDefault().isEmpty() || window.isLoadingImages()) {
            if (window.isLoadingImages())
                loop.processEvents(QEventLoop::WaitForMoreEvents);
        }
        picture = window.grab();
        // The view may have been drawn just now for the first time, and have asked for its images.
    } while (window.isLoadingImages());
    return orvane::writePicture(picture.toImage(), m_commandLine.screenshotFile);
}
