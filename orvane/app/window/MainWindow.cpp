#include "orvane/app/window/MainWindow.h"

#include "orvane/app/base/DraggedFile.h"
#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/base/TextGuard.h"
#include "orvane/app/fields/FieldPanel.h"
#include "orvane/app/files/FileFlow.h"
#include "orvane/app/files/JobBar.h"
#include "orvane/app/files/RecentFiles.h"
#include "orvane/app/files/disk/DiskWatch.h"
#include "orvane/app/images/ImageFolderQuestion.h"
#include "orvane/app/inspect/Inspectors.h"
#include "orvane/app/inspect/SelectionLink.h"
#include "orvane/app/instance/NewWindow.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/log/LogTap.h"
#include "orvane/app/look/Symbols.h"
#include "orvane/app/look/Theme.h"
#include "orvane/app/messages/ErrorRelay.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/recovery/RecoveryOffer.h"
#include "orvane/app/recovery/SceneRecovery.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/settings/SettingsStore.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/app/welcome/PictureKeeper.h"
#include "orvane/app/window/CentralArea.h"
#include "orvane/app/window/ComparisonDock.h"
#include "orvane/app/window/DiskChangeBar.h"
#include "orvane/app/window/WindowLayout.h"
#include "orvane/app/window/WindowShell.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/file/NxScenePath.h"

#include <QCloseEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QUrl>

#include <utility>

namespace {

const QString recoveryTopic = QStringLiteral("recoveryFailure");

} // namespace

MainWindow::MainWindow(Session& session)
    : m_session(session)
    , m_errorRelay(std::make_unique<ErrorRelay>())
    , m_shell(std::make_unique<WindowShell>(this))
    , m_recent(new RecentFiles(session.settings(), this))
    , m_messages(new MessageBar(this))
    , m_view(new SceneView(this))
    , m_central(new CentralArea(m_messages, m_view, *m_recent, this))
    , m_imageFolders(new ImageFolderQuestion(m_view->drawing().textures(), session.settings(), *m_messages, this))
    , m_fields(new FieldPanel(session.services(), session.settings(), this))
    , m_tree(new SceneTreePanel(this))
    , m_jobBar(new JobBar(this))
{
    new TextGuard(this);
    m_theme = new Theme(SettingsStore::of(session.settings()), this);
    setObjectName(QStringLiteral("mainWindow"));
    setAcceptDrops(true);
    setDockOptions(AllowNestedDocks | AllowTabbedDocks);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    buildCentralWidget();
    buildDocks();
    buildMenus();
    connectDocument();

    orvane::look::setSymbols(*this);
    m_fields->setSceneFolder([this] { return document().pathFolder(); });
    m_layout = new WindowLayout(this, *m_shell, session.settings());
}

MainWindow::~MainWindow()
{
    m_session.shutDown();
    // The document lives longer than the window, whose parts are about to be deleted.
    disconnect(&m_session.document(), nullptr, this, nullptr);
}

SceneDocument& MainWindow::document() const
{
    return m_session.document();
}

void MainWindow::openFile(const QString& fileName, const FileFlow::Opened& opened)
{
    m_files->open(fileName, opened);
}

void MainWindow::openWindow(const QString& fileName)
{
    if (const auto opened = NewWindow::open(fileName); !opened)
        showError(opened.error());
}

orvane::Result<> MainWindow::selectPath(const QString& path)
{
    if (!document().isOpen())
        return orvane::Failure{tr("No scene is open.")};
    const NxScenePath::Target target = NxScenePath::find(document().scene(), path.toStdString());
    if (!target.error.empty())
        return orvane::Failure{orvane::toQString(target.error)};
    m_inspectors->link().browse(m_tree->model()->indexOfPath(target.nodes), target.field);
    return {};
}

void MainWindow::compareWith(const NxRef<NxGroup>& other, const QString& fileName)
{
    if (m_comparison == nullptr)
        m_comparison = new ComparisonDock(m_session, *m_messages, *m_jobBar, m_tree, m_inspectors->link(), this);
    m_comparison->compare(other, fileName);
}

void MainWindow::startRecovery(const RecoveryFolder& folder)
{
    m_recovery = std::make_unique<SceneRecovery>(m_session.services(), document(), folder, SceneRecovery::Limits());
    connect(m_recovery.get(), &SceneRecovery::failed, this, [this](const QString& message) {
        m_messages->showMessage(MessageBar::Severity::Warning,
            tr("Unsaved changes can't be kept for recovery after a crash: %1. It is tried again every minute.")
                .arg(message),
            recoveryTopic);
    });
    connect(m_recovery.get(), &SceneRecovery::works, this, [this] { m_messages->clearTopic(recoveryTopic); });
    connect(&m_files->disk(), &DiskWatch::changed, m_recovery.get(), [this] {
        if (m_files->disk().state() != DiskWatch::State::Same)
            m_recovery->leaveFile();
    });
    (new RecoveryOffer(*m_files, *m_recovery, *m_messages, this))->start(folder);
}

void MainWindow::keepPictures()
{
    new PictureKeeper(document(), m_view, Thumbnails(), this);
}

void MainWindow::followDesktop()
{
    m_theme->followPortal();
    m_layout->fitScreen();
}

void MainWindow::startView()
{
    if (m_view->isVisible())
        m_view->start();
}

bool MainWindow::isLoadingImages() const
{
    return m_view->drawing().textures().isLoading();
}

void MainWindow::showError(const QString& message)
{
    m_messages->showMessage(MessageBar::Severity::Error, message);
}

void MainWindow::showWarning(const QString& message)
{
    m_messages->showMessage(MessageBar::Severity::Warning, message);
}

void MainWindow::buildCentralWidget()
{
    setCentralWidget(m_central);
    connect(&m_view->drawing().textures(), &TextureFiles::folderRefused, this, &MainWindow::imageFolderRefused);
    connect(m_errorRelay.get(), &ErrorRelay::reported, this,
        [this](MessageBar::Severity severity, const QString& text) { m_messages->showLogged(severity, text); });
}

void MainWindow::connectDocument()
{
    const SceneDocument& scene = document();
    connect(&scene, &SceneDocument::sceneAboutToChange, this, [this] { m_tree->setScene(nullptr); });
    connect(&scene, &SceneDocument::sceneAboutToChange, m_imageFolders, &ImageFolderQuestion::reset);
    connect(&scene, &SceneDocument::sceneChanged, this, &MainWindow::showDocument);
    connect(&scene, &SceneDocument::fileNameChanged, this, &MainWindow::updateTitle);
    connect(&scene, &SceneDocument::modifiedChanged, this, &QWidget::setWindowModified);
    showDocument();
    orvane::followLanguage(this, [this] { updateTitle(); });
}

void MainWindow::updateTitle()
{
    setWindowTitle(
        document().isOpen() ? tr("%1[*] — Orvane").arg(orvane::titleText(document().displayName())) : tr("Orvane"));
    setWindowModified(document().isModified());
}

void MainWindow::showDocument()
{
    m_tree->setScene(document().scene());
    // A file may still be opened before the window is shown.
    if (document().isOpen())
        m_central->showView();
    else if (isVisible())
        m_central->showStartPage();
}

void MainWindow::reportSettled(const orvane::Result<>& result)
{
    if (NxDelayQueue::getDefault().isEmpty())
        Q_EMIT settled(result);
    else
        QMetaObject::invokeMethod(
            this, [this, result] { reportSettled(result); }, Qt::QueuedConnection);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!m_mayClose) {
        const QScopedValueRollback inside(m_insideClose, true);
        m_files->leaveForQuit([this] {
            m_mayClose = true;
            if (!m_insideClose) // a window that is being closed doesn't take another close
                close();
        });
    }
    if (!std::exchange(m_mayClose, false)) {
        event->ignore();
        return;
    }
    m_files->abandon();
    m_layout->save();
}

void MainWindow::showEvent(QShowEvent* event)
{
    m_layout->restore(*m_inspectors);
    if (!document().isOpen())
        m_central->showStartPage();
    QMainWindow::showEvent(event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!orvane::draggedFile(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event)
{
    const QString fileName = orvane::draggedFile(*event->mimeData());
    if (fileName.isEmpty())
        return;
    event->acceptProposedAction();
    openFile(fileName);
}
