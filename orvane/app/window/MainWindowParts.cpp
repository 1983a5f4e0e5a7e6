// What the main window consists of, and how the parts are connected.
#include "orvane/app/actions/WindowActions.h"
#include "orvane/app/docks/LogDock.h"
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
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/log/LogTap.h"
#include "orvane/app/look/Look.h"
#include "orvane/app/look/Theme.h"
#include "orvane/app/manners/EditorManners.h"
#include "orvane/app/messages/MessageBar.h"
#include "orvane/app/plugins/PluginActions.h"
#include "orvane/app/scene/Session.h"
#include "orvane/app/settings/SettingsStore.h"
#include "orvane/app/settings/window/SettingsActions.h"
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
#include "orvane/app/window/DiskChangeBar.h"
#include "orvane/app/window/DockHeights.h"
#include "orvane/app/window/EditMenu.h"
#include "orvane/app/window/HelpMenu.h"
#include "orvane/app/window/HistoryDock.h"
#include "orvane/app/window/KeptColumns.h"
#include "orvane/app/window/LanguageMenu.h"
#include "orvane/app/window/ListDock.h"
#include "orvane/app/window/MainWindow.h"
#include "orvane/app/window/ProblemsDock.h"
#include "orvane/app/window/ReloadedTree.h"
#include "orvane/app/window/ReturnedNodes.h"
#include "orvane/app/window/SceneDrops.h"
#include "orvane/app/window/WindowShell.h"

#include <QDockWidget>
#include <QStatusBar>
#include <QToolBar>

#include <chrono>
#include <functional>

namespace {

const QString reloadKey = QStringLiteral("files/reloadsByItself");
constexpr int treeWidth = 330;

QToolBar* addFileTools(QMainWindow& window, const QList<QAction*>& ofFiles, const QList<QAction*>& ofEdits)
{
    QToolBar* const bar = window.addToolBar(QString());
    bar->setObjectName(QStringLiteral("mainToolBar"));
    bar->addActions(ofFiles);
    bar->addSeparator();
    bar->addActions(ofEdits);
    return bar;
}

} // namespace

void MainWindow::buildDocks()
{
    auto* dock = new QDockWidget(this);
    orvane::followLanguage(dock, [this, dock] {
        dock->setWindowTitle(tr("Scene"));
        // Docks that need much width, such as the problems, leave room for the title and its buttons.
        const int buttons = 4 * orvane::look::iconSize(fontMetrics());
        m_tree->setMinimumWidth(fontMetrics().horizontalAdvance(dock->windowTitle()) + buttons);
    });
    dock->setObjectName(QStringLiteral("sceneDock"));
    dock->setWidget(m_tree);
    addDockWidget(Qt::LeftDockWidgetArea, dock);
    // Above the docks of extensions that edit the field that is chosen here.
    auto* fieldsDock = new QDockWidget(this);
    orvane::followLanguage(fieldsDock, [fieldsDock] { fieldsDock->setWindowTitle(tr("Fields")); });
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
    auto* log = new LogDock(m_session, *m_messages, this);
    m_logTap = std::make_unique<LogTap>(log->book(), m_session.plugins());
    connect(log, &LogDock::nodeChosen, this, [this](const QString& path) {
        if (const auto selected = selectPath(path); !selected)
            showWarning(selected.error());
    });
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
    connect(m_central, &CentralArea::windowRequested, this, &MainWindow::openWindow);
    connect(m_central, &CentralArea::failed, this, &MainWindow::showWarning);
    connectReload();
    m_fileMenu = new FileMenu(this, *m_files, *m_recent, document());
    connect(m_fileMenu, &FileMenu::windowRequested, this, &MainWindow::openWindow);
    auto* editMenu = new EditMenu(this, m_session, m_tree);
    new TreeFinder(
        m_session, *m_imageFolders, m_tree, std::bind_front(&SelectionLink::browse, &m_inspectors->link()), this);
    m_view->addActions(editMenu->nodeActions());
    new SceneDrops(m_session, *m_files, m_tree, m_view, editMenu->nodes(), *m_messages);
    new ReturnedNodes(m_session.services(), *findChild<StepTravel*>(), m_tree, editMenu->nodes().editor().selections());
    auto* cameras = new CameraMenu(m_view, document());
    auto* const viewActions = new ViewActions(m_view, m_session.settings());
    auto* viewMenu = new ViewMenu(this, viewActions, cameras);
    auto* navigation
        = new NavigationActions(m_view, m_session, m_tree, editMenu->nodes().editor(), *cameras, statusBar());
    auto* hiding = new HidingActions(m_view, m_tree, statusBar());
    new NodeMenu(m_session, m_tree, m_view, *m_inspectors, cameras, editMenu->nodes(),
        editMenu->nodeActions() + hiding->nodeActions());
    editMenu->addSettings((new SettingsActions(m_session.settings(), *m_messages, this))->action());
    const auto* actions = new WindowActions(
        this, m_session, {m_tree, m_fields, *m_inspectors, *m_files, *m_recent, *cameras, navigation->bookmarks()});
    const auto* const help = new HelpMenu(this, *m_shell, m_session.settings(), actions->keysAction());
    new PluginActions(m_session.pluginLoader(), *m_messages, help->menu(), this);
    new EditorManners(this, m_session.services(), m_fields);
    connect(m_shell.get(), &WindowShell::contentChanged, viewMenu, &ViewMenu::update);

    QToolBar* const toolBar = addFileTools(*this, m_fileMenu->toolBarActions(), editMenu->toolBarActions());
    orvane::followLanguage(toolBar, [toolBar] { toolBar->setWindowTitle(tr("File and Edit")); });
    m_inspectors->addToolBar();
    const auto* const pictures
        = new PictureExport(m_view, {m_session, *cameras, navigation->bookmarks(), *m_messages, statusBar()});
    const ViewHandles& handles = *new ViewHandles(m_session, m_view, m_tree);
    QAction* const guides = viewMenu->submenu("guidesMenu", viewActions->switches() + QList{handles.symbolsAction()});
    QAction* const inspectors = viewMenu->submenu("inspectorsMenu", m_inspectors->menuActions());
    QAction* const themes = viewMenu->submenu("themeMenu", m_theme->actions());
    orvane::followLanguage(this, [guides, inspectors, themes] {
        guides->setText(tr("&Guides"));
        themes->setText(tr("Theme"));
        inspectors->setText(tr("&Inspectors"));
    });
    viewMenu->append(navigation->menuActions());
    viewMenu->append({guides, (new DisplayMenu(m_view, m_session))->menuAction(), handles.menuAction(),
        (new MeasureTool(m_view, m_session))->action(), pictures->action()});
    viewMenu->append(hiding->actions());
    viewMenu->append((new TreeActions(m_tree, statusBar()))->menuActions() << inspectors);
    viewMenu->append({themes, m_imageFolders->forgetAction(),
        (new LanguageMenu(SettingsStore::of(m_session.settings()), this))->menuAction()});
    viewMenu->update();
    new KeptColumns(this, m_session.settings());
}

void MainWindow::connectReload()
{
    m_diskChange = new DiskChangeBar(document(), *m_files, *m_messages, this);
    SettingsStore& store = SettingsStore::of(m_session.settings());
    store.follow(reloadKey, m_diskChange, [this, &store] { m_diskChange->setReloadsByItself(store.isOn(reloadKey)); });
    m_inspectors->followReloads(*m_files);
    new ReloadedTree(*m_files, document(), m_session.services(), m_tree, this);
    const auto say = [this](const QString& text) {
        constexpr std::chrono::seconds shown(10);
        statusBar()->showMessage(text, static_cast<int>(std::chrono::milliseconds(shown).count()));
    };
    connect(m_files, &FileFlow::reloaded, this, say);
    connect(m_files, &FileFlow::noted, this, say);
}
