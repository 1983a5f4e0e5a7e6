#include "orvane/app/window/MainWindow.h"

#include "orvane/app/actions/WindowActions.h"
#include "orvane/app/base/DraggedFile.h"
#include "orvane/app/base/PlainText.h"
#include "orvane/app/base/TextConversion.h"
#include "orvane/app/base/TextGuard.h"
#include "orvane/app/fields/FieldPanel.h"
#include "orvane/app/files/FileFlow.h"
#include "orvane/app/files/FileMenu.h"
#include "orvane/app/files/JobBar.h"
#include "orvane/app/files/RecentFiles.h"
#include "orvane/app/find/TreeFinder.h"
#include "orvane/app/history/StepTravel.h"
#include "orvane/app/images/ImageFolderQuestion.h"
#include "orvane/app/inspect/Inspectors.h"
#include "orvane/app/inspect/NodeMenu.h"
#include "orvane/app/inspect/SelectionLink.h"
#include "orvane/app/manners/EditorManners.h"
#include "orvane/app/messages/ErrorRelay.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/plugins/PluginActions.h"
#include "orvane/app/recovery/RecoveryOffer.h"
#include "orvane/app/recovery/SceneRecovery.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/structure/NodeActions.h"
#include "orvane/app/tree/SceneTreeModel.h"
#include "orvane/app/tree/SceneTreePanel.h"
#include "orvane/app/tree/SelectionStatus.h"
#include "orvane/app/tree/TreeActions.h"
#include "orvane/app/tree/TreeMemory.h"
#include "orvane/app/view/CameraMenu.h"
#include "orvane/app/view/HidingActions.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/ViewActions.h"
#include "orvane/app/view/ViewLink.h"
#include "orvane/app/view/ViewMenu.h"
#include "orvane/app/view/display/DisplayMenu.h"
#include "orvane/app/view/handles/ViewHandles.h"
#include "orvane/app/view/marks/MarkedRows.h"
#include "orvane/app/view/measure/MeasureTool.h"
#include "orvane/app/view/navigation/NavigationActions.h"
#include "orvane/app/view/picture/PictureExport.h"
#include "orvane/app/window/CentralArea.h"
#include "orvane/app/window/ComparisonDock.h"
#include "orvane/app/window/DiskChangeBar.h"
#include "orvane/app/window/DockHeights.h"
#include "orvane/app/window/EditMenu.h"
#include "orvane/app/window/HelpMenu.h"
#include "orvane/app/window/HistoryDock.h"
#include "orvane/app/window/KeptColumns.h"
#include "orvane/app/window/ListDock.h"
#include "orvane/app/window/ProblemsDock.h"
#include "orvane/app/window/ReloadedTree.h"
#include "orvane/app/window/ReturnedNodes.h"
#include "orvane/app/window/SceneDrops.h"
#include "orvane/app/window/WindowShell.h"

#include "meridane/base/NxDelayQueue.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/file/NxScenePath.h"

#include <QCloseEvent>
#include <QDockWidget>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QStatusBar>
#include <QToolBar>
#include <QUrl>

#include <chrono>
#include <functional>
#include <utility>

namespace {

constexpr QSize firstSize(1280, 800);
constexpr int treeWidth = 330;
const QString geometryKey = QStringLiteral("window/geometry");
const QString recoveryTopic = QStringLiteral("recoveryFailure");
const QString stateKey = QStringLiteral("window/state");

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
    setObjectName(QStringLiteral("mainWindow"));
    setAcceptDrops(true);
    setDockOptions(AllowNestedDocks | AllowTabbedDocks);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    buildCentralWidget();
    buildDocks();
    buildMenus();
    connectDocument();

    m_fields->setSceneFolder([this] { return document().pathFolder(); });
    resize(firstSize);
    restoreGeometry(session.settings().value(geometryKey).toByteArray());
    if (!session.settings().problem().isEmpty())
        showWarning(session.settings().problem());
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

void MainWindow::startView()
{
    if (m_view->isVisible())
        m_view->start();
}

void MainWindow::setReloadsByItself(bool reloads)
{
    m_diskChange->setReloadsByItself(reloads);
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
        [this](MessageBar::Severity severity, const QString& text) { m_messages->showMessage(severity, text); });
}

void MainWindow::buildDocks()
{
    auto* dock = new QDockWidget(tr("Scene"), this);
    dock->setObjectName(QStringLiteral("sceneDock"));
    dock->setWidget(m_tree);
    addDockWidget(Qt::LeftDockWidgetArea, dock);
    // Above the docks of extensions that edit the field that is chosen here.
    auto* fieldsDock = new QDockWidget(tr("Fields"), this);
    fieldsDock->setObjectName(QStringLiteral("fieldsDock"));
    fieldsDock->setWidget(m_fields);
    addDockWidget(Qt::RightDockWidgetArea, fieldsDock);
    resizeDocks({dock, fieldsDock}, {treeWidth, WindowShell::widthAtSide(*this)}, Qt::Horizontal);
    m_inspectors = new Inspectors(m_session, m_tree, m_fields, this);
    auto* travel = new StepTravel(m_session.services(), this);
    new HistoryDock(m_session, *travel, *m_messages, this);
    auto* lists = new ListDock(m_session, this);
    lists->follow(*m_fields, *m_inspectors);
    new DockHeights(*m_shell, m_session.services(), m_session.settings(), this);
    auto* problems = new ProblemsDock(m_session, *m_imageFolders, *m_jobBar, m_tree, this);
    connect(problems, &ProblemsDock::rowChosen, lists, &ListDock::showRow);
    new SelectionStatus(m_session, m_tree, statusBar());
    new TreeMemory(m_session, m_tree);
    new ViewLink(m_session, m_view, m_tree, statusBar());
    connect(lists, &ListDock::panelMade, new MarkedRows(m_view, m_tree), &MarkedRows::follow);
    statusBar()->addPermanentWidget(m_jobBar);
    connect(m_tree->model(), &QAbstractItemModel::dataChanged, m_fields, &FieldPanel::updateHeading);
}

void MainWindow::buildMenus()
{
    m_files = new FileFlow(m_session, *m_recent, *m_messages, *m_jobBar, this);
    connect(m_files, &FileFlow::ended, this, &MainWindow::reportSettled, Qt::QueuedConnection);
    connect(m_files, &FileFlow::readToCompare, this, &MainWindow::compareWith);
    connect(m_central, &CentralArea::openRequested, m_files, &FileFlow::chooseFileToOpen);
    connect(m_central, &CentralArea::newRequested, m_files, &FileFlow::newScene);
    connect(m_central, &CentralArea::fileChosen, this, [this](const QString& fileName) { openFile(fileName); });
    connectReload();
    m_fileMenu = new FileMenu(this, *m_files, *m_recent, document());
    auto* editMenu = new EditMenu(this, m_session, m_tree);
    new TreeFinder(
        m_session, *m_imageFolders, m_tree, std::bind_front(&SelectionLink::browse, &m_inspectors->link()), this);
    m_view->addActions(editMenu->nodeActions());
    new SceneDrops(m_session, *m_files, m_tree, m_view, editMenu->nodes(), *m_messages);
    new ReturnedNodes(m_session.services(), *findChild<StepTravel*>(), m_tree, editMenu->nodes().editor().selections());
    auto* cameras = new CameraMenu(m_view, document());
    auto* viewMenu = new ViewMenu(this, new ViewActions(m_view, m_session.settings()), cameras);
    auto* navigation
        = new NavigationActions(m_view, m_session, m_tree, editMenu->nodes().editor(), *cameras, statusBar());
    auto* hiding = new HidingActions(m_view, m_tree, statusBar());
    new NodeMenu(m_session, m_tree, m_view, *m_inspectors, cameras, editMenu->nodes(),
        editMenu->nodeActions() + hiding->nodeActions());
    const auto* actions = new WindowActions(
        this, m_session, {m_tree, m_fields, *m_inspectors, *m_files, *m_recent, *cameras, navigation->bookmarks()});
    const auto* const help = new HelpMenu(this, *m_shell, actions->keysAction());
    new PluginActions(m_session.pluginLoader(), *m_messages, help->menu(), this);
    new EditorManners(this, m_session.services(), m_fields);
    connect(m_shell.get(), &WindowShell::contentChanged, viewMenu, &ViewMenu::update);

    QToolBar* toolBar = addToolBar(tr("File and Edit"));
    toolBar->setObjectName(QStringLiteral("mainToolBar"));
    toolBar->addActions(m_fileMenu->toolBarActions());
    toolBar->addSeparator();
    toolBar->addActions(editMenu->toolBarActions());
    m_inspectors->addToolBar();
    viewMenu->append((new ViewHandles(m_session, m_view, m_tree))->menuActions());
    viewMenu->append(hiding->actions() + (new TreeActions(m_tree, statusBar()))->menuActions());
    viewMenu->append(m_inspectors->menuActions());
    viewMenu->append(
        {(new DisplayMenu(m_view, m_session))->menuAction(), (new MeasureTool(m_view, m_session))->action()});
    const auto* const pictures
        = new PictureExport(m_view, {m_session, *cameras, navigation->bookmarks(), *m_messages, statusBar()});
    viewMenu->append(navigation->menuActions() + QList{pictures->action()});
    viewMenu->append({m_imageFolders->forgetAction()});
    viewMenu->update();
    new KeptColumns(this, m_session.settings());
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
    updateTitle();
}

void MainWindow::connectReload()
{
    m_diskChange = new DiskChangeBar(document(), *m_files, *m_messages, this);
    m_inspectors->followReloads(*m_files);
    new ReloadedTree(*m_files, document(), m_session.services(), m_tree, this);
    const auto say = [this](const QString& text) {
        constexpr std::chrono::seconds shown(10);
        statusBar()->showMessage(text, static_cast<int>(std::chrono::milliseconds(shown).count()));
    };
    connect(m_files, &FileFlow::reloaded, this, say);
    connect(m_files, &FileFlow::noted, this, say);
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
    saveLayout();
}

void MainWindow::showEvent(QShowEvent* event)
{
    // By now the extensions of the first profile have added their docks and tool bars.
    if (!std::exchange(m_layoutRestored, true))
        restoreLayout();
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

void MainWindow::saveLayout()
{
    m_session.settings().setValue(geometryKey, saveGeometry());
    m_session.settings().setValue(stateKey, saveState());
    m_session.settings().sync();
}

void MainWindow::restoreLayout()
{
    m_inspectors->restoreDocks();
    const QByteArray state = m_session.settings().value(stateKey).toByteArray();
    if (state.isEmpty())
        return;
    QHash<QDockWidget*, bool> hidden;
    for (QDockWidget* dock : m_shell->docks())
        hidden.insert(dock, dock->isHidden());
    restoreState(state);
    // Whether an extension's dock is seen is the extension's own decision.
    for (auto dock = hidden.constBegin(); dock != hidden.constEnd(); ++dock)
        dock.key()->setHidden(dock.value());
}
