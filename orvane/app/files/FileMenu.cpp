#include "orvane/app/files/FileMenu.h"

#include "orvane/app/base/ActionState.h"
#include "orvane/app/base/PlainText.h"
#include "orvane/app/files/FileFlow.h"
#include "orvane/app/files/RecentFiles.h"
#include "orvane/app/language/FollowLanguage.h"
#include "orvane/app/scene/SceneDocument.h"

#include <QAction>
#include <QDir>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

FileMenu::FileMenu(QMainWindow* window, FileFlow& flow, RecentFiles& recent, SceneDocument& document)
    : QObject(window)
    , m_window(window)
    , m_flow(flow)
    , m_recent(recent)
    , m_document(document)
    , m_menu(window->menuBar()->addMenu(QString()))
{
    orvane::followLanguage(this, [this] { m_menu->setTitle(tr("&File")); });
    m_new = addAction(QT_TR_NOOP("&New"), "file.new", QT_TR_NOOP("Starts an empty scene"));
    m_new->setShortcut(QKeySequence::New);
    connect(m_new, &QAction::triggered, &flow, &FileFlow::newScene);
    QAction* const newWindow = addAction(
        QT_TR_NOOP("New Win&dow"), "file.newWindow", QT_TR_NOOP("Opens another window, with a program of its own"));
    newWindow->setShortcut(QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_N));
    connect(newWindow, &QAction::triggered, this, [this] { Q_EMIT windowRequested({}); });
    m_open = addAction(QT_TR_NOOP("&Open…"), "file.open", QT_TR_NOOP("Opens a scene or a model"));
    m_open->setShortcut(QKeySequence::Open);
    connect(m_open, &QAction::triggered, &flow, &FileFlow::chooseFileToOpen);
    m_recentMenu = m_menu->addMenu(QString());
    orvane::followLanguage(this, [this] { m_recentMenu->setTitle(tr("Open &Recent")); });
    m_recentMenu->setObjectName(QStringLiteral("recentMenu"));
    m_menu->addSeparator();
    m_save = addAction(QT_TR_NOOP("&Save"), "file.save", QT_TR_NOOP("Writes the scene to its file"));
    m_save->setShortcut(QKeySequence::Save);
    connect(m_save, &QAction::triggered, &flow, &FileFlow::save);
    m_saveAs = addAction(
        QT_TR_NOOP("Save &As…"), "file.saveAs", QT_TR_NOOP("Writes the scene to another file, which becomes its own"));
    m_saveAs->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    connect(m_saveAs, &QAction::triggered, &flow, &FileFlow::saveAs);
    m_reload = addAction(QT_TR_NOOP("Re&load from Disk"), "file.reload",
        QT_TR_NOOP("Makes the scene equal to its file again; undo brings your changes back"));
    m_reload->setShortcut(QKeySequence(Qt::Key_F5));
    connect(m_reload, &QAction::triggered, &flow, [&flow] { flow.reload(); });
    m_menu->addSeparator();
    QAction* import
        = addAction(QT_TR_NOOP("&Import…"), "file.import", QT_TR_NOOP("Adds the content of a file to the scene"));
    import->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_I));
    connect(import, &QAction::triggered, &flow, &FileFlow::chooseFileToImport);
    m_export
        = addAction(QT_TR_NOOP("&Export…"), "file.export", QT_TR_NOOP("Writes the scene to a file of another format"));
    m_export->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_E));
    connect(m_export, &QAction::triggered, &flow, &FileFlow::chooseFileToExport);
    m_compare = addAction(
        QT_TR_NOOP("Compare &With…"), "file.compare", QT_TR_NOOP("Shows how the scene differs from a file"));
    m_compare->setShortcut(QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_D));
    connect(m_compare, &QAction::triggered, &flow, &FileFlow::chooseFileToCompare);
    m_menu->addSeparator();
    m_close = addAction(QT_TR_NOOP("&Close"), "file.close", QT_TR_NOOP("Closes the scene"));
    m_close->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_W));
    connect(m_close, &QAction::triggered, &flow, &FileFlow::closeScene);
    QAction* quit = addAction(QT_TR_NOOP("&Quit"), "file.quit", QT_TR_NOOP("Closes the window and ends the program"));
    quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    quit->setMenuRole(QAction::QuitRole);
    connect(quit, &QAction::triggered, window, &QWidget::close);

    connect(&recent, &RecentFiles::changed, this, &FileMenu::fillRecentMenu);
    connect(&document, &SceneDocument::sceneChanged, this, &FileMenu::updateActions);
    connect(&document, &SceneDocument::fileNameChanged, this, &FileMenu::updateActions);
    orvane::followLanguage(this, [this] { fillRecentMenu(); });
    orvane::followLanguage(this, [this] { updateActions(); });
}

QAction* FileMenu::addAction(const char* text, const char* name, const char* statusTip)
{
    QAction* action = m_menu->addAction(QString());
    orvane::followLanguage(action, [action, text, statusTip] {
        action->setText(tr(text));
        action->setStatusTip(tr(statusTip));
    });
    action->setObjectName(QLatin1String(name));
    return action;
}

QList<QAction*> FileMenu::toolBarActions() const
{
    return {m_new, m_open, m_save};
}

void FileMenu::fillRecentMenu()
{
    m_recentMenu->clear();
    int number = 0;
    for (const QString& fileName : m_recent.fileNames().mid(0, RecentFiles::menuCapacity)) {
        const QString shown = orvane::menuText(QDir::toNativeSeparators(fileName));
        QAction* action = m_recentMenu->addAction(
            ++number < 10 ? QStringLiteral("&%1  %2").arg(number).arg(shown) : QStringLiteral("    %1").arg(shown));
        action->setToolTip(orvane::plainToolTip(orvane::oneLine(fileName)));
        action->setData(fileName);
        connect(action, &QAction::triggered, &m_flow, [this, fileName] { m_flow.open(fileName); });
    }
    m_recentMenu->setEnabled(number > 0);
    if (number == 0)
        return;
    m_recentMenu->addSeparator();
    QAction* const clear = m_recentMenu->addAction(tr("&Clear List"));
    clear->setObjectName(QStringLiteral("file.clearRecent"));
    clear->setStatusTip(tr("Forgets which files were opened"));
    connect(clear, &QAction::triggered, &m_recent, &RecentFiles::clear);
}

void FileMenu::updateActions()
{
    for (QAction* action : {m_save, m_saveAs, m_export, m_compare, m_close})
        orvane::setReason(*action, m_document.isOpen() ? QString() : tr("No scene is open."));
    orvane::setReason(*m_reload, m_document.fileName().isEmpty() ? tr("The scene has no file yet.") : QString());
}
