#pragma once

#include "orvane/app/base/Result.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QMainWindow>

#include <functional>
#include <memory>

class CentralArea;
class ComparisonDock;
class DiskChangeBar;
class ErrorRelay;
class FieldPanel;
class FileFlow;
class FileMenu;
class ImageFolderQuestion;
class JobBar;
class LogTap;
class Inspectors;
class MessageBar;
class RecoveryFolder;
class RecentFiles;
class SceneDocument;
class SceneRecovery;
class SceneTreePanel;
class SceneView;
class Session;
class Theme;
class WindowLayout;
class WindowShell;

/// The tool's window: the view of the scene, the scene tree, the fields of the selected node, and what extensions add.
///
/// It shows a session and is the shell of its extensions, so the session's plug-ins and profile come after the window.
/// Its destructor shuts the session down.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit MainWindow(Session& session);
    ~MainWindow() override;

    [[nodiscard]] SceneDocument& document() const;

    /// Opens a scene or imports a model. The user is asked first about changes that aren't saved. `opened` is called
    /// once, unless the window is closed first: with success when the scene of the file has just become the open one,
    /// else with the reason why it hasn't. `settled` follows.
    void openFile(const QString& fileName, const std::function<void(const orvane::Result<>&)>& opened = {});
    /// Opens another window, a process of its own, with that file or, if it is empty, without one.
    void openWindow(const QString& fileName);
    /// Selects what a path such as `/robot/arm.rotation` leads to, in tree and table. Fails when it leads nowhere.
    orvane::Result<> selectPath(const QString& path);
    /// Compares the open scene with another, which the user knows as the file of that name, and shows the differences
    /// in a dock. Returns at once; does nothing if no scene is open.
    void compareWith(const NxRef<NxGroup>& other, const QString& fileName);
    /// Keeps unsaved changes in recovery files of that folder from now on, and offers what programs have left there
    /// that didn't end properly.
    void startRecovery(const RecoveryFolder& folder);
    /// Keeps pictures of the files for the start page and file managers from now on.
    void keepPictures();
    /// For a window on a screen: it is no larger than that, and follows the desktop portal from now on, where the user
    /// leaves light or dark to the desktop.
    void followDesktop();
    /// Starts the view's drawing now instead of after the first paint, for a picture of the window.
    void startView();
    /// Whether images of textures are still being loaded for the view.
    [[nodiscard]] bool isLoadingImages() const;
    /// Shows a message to the user.
    void showError(const QString& message);
    void showWarning(const QString& message);

Q_SIGNALS:
    /// Work on a file finished, failed or was cancelled, and the window shows its result. Cancelled work is no failure.
    void settled(const orvane::Result<>& result);
    /// Images of the scene in that folder aren't loaded, because it is outside the scene's and isn't allowed.
    void imageFolderRefused(const QString& folder);

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void buildCentralWidget();
    void buildDocks();
    void buildMenus();
    void connectDocument();
    void updateTitle();
    void showDocument();
    void connectReload();
    void reportSettled(const orvane::Result<>& result);

    Session& m_session;
    std::unique_ptr<ErrorRelay> m_errorRelay;
    std::unique_ptr<LogTap> m_logTap; // which passes errors on to the relay
    std::unique_ptr<WindowShell> m_shell;
    RecentFiles* m_recent;
    MessageBar* m_messages;
    SceneView* m_view;
    CentralArea* m_central;
    ImageFolderQuestion* m_imageFolders;
    FieldPanel* m_fields;
    SceneTreePanel* m_tree;
    Theme* m_theme = nullptr;
    Inspectors* m_inspectors = nullptr;
    WindowLayout* m_layout = nullptr;
    JobBar* m_jobBar;
    ComparisonDock* m_comparison = nullptr; // made for the first comparison
    FileFlow* m_files = nullptr;
    FileMenu* m_fileMenu = nullptr;
    DiskChangeBar* m_diskChange = nullptr;
    std::unique_ptr<SceneRecovery> m_recovery; // once it is started
    bool m_mayClose = false;
    bool m_insideClose = false;
};
