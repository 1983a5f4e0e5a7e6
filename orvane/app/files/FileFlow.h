#pragma once

#include "orvane/app/files/FileWork.h"
#include "orvane/app/files/SceneReload.h"
#include "orvane/app/files/SceneSaving.h"
#include "orvane/app/files/disk/DiskWatch.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class JobBar;
class MessageBar;
class RecentFiles;
class Session;

/// What happens to the scene and its file when the user opens, adds, saves, exports, closes or quits, and a question
/// before whatever would lose changes.
///
/// A request belongs to the scene that was open when it was made. A file that is opened takes the place of one that is
/// still read. All state is in `FileWork`: the jobs that run and the requests that wait. docs/robustness.md has the
/// table of how a request is handled while a job runs.
///
/// An open that fails leaves the open scene as it is.
class FileFlow : public QObject {
    Q_OBJECT

public:
    using Action = std::function<void()>;
    /// Called when the opening of a file has ended: with success when its scene is open now, else with the reason why
    /// it isn't.
    using Opened = std::function<void(const orvane::Result<>& result)>;

    /// What makes the jobs.
    struct JobMakers {
        SceneReload::Load load;
        SceneSaving::Write save;
    };

    /// The session, the bars and the window live longer than the flow.
    FileFlow(Session& session, RecentFiles& recent, MessageBar& messages, JobBar& jobBar, QWidget* window);
    FileFlow(Session& session, RecentFiles& recent, MessageBar& messages, JobBar& jobBar, QWidget* window,
        JobMakers jobMakers);
    ~FileFlow() override;

    void newScene();
    void closeScene();
    /// `opened` is called once, unless the window is closed first.
    void open(const QString& fileName, const Opened& opened = {});
    /// Opens a scene with changes that aren't saved, of that file, or of none if `fileName` is empty. `makeJob` makes
    /// the job that recovers it. `opened` is called as for `open`.
    void openRecovered(const QString& displayName, const QString& fileName,
        const std::function<std::unique_ptr<SceneJob>()>& makeJob, const Opened& opened);
    /// Adds the content of a file to the open scene, in a group of the file's name, as one step of the history; opens
    /// it when no scene is open.
    void import(const QString& fileName);
    /// Reads a file as `import` does, but leaves what is done with it to the reader: exactly one of its functions is
    /// called, unless the window is closed first. Fails if no scene is open.
    void readToAdd(const QString& fileName, const FileWork::Reader& reader);
    /// Reads a file to compare the open scene with it; `readToCompare` follows. Does nothing when no scene is open.
    void compareWith(const QString& fileName);
    /// Makes the open scene equal to its file again, as a step that can be undone. Does nothing for a scene without a
    /// file.
    void reload(SceneReload::Trigger trigger = SceneReload::Trigger::User);
    /// Saves to the scene's own file, or asks for one. Asks as well if somebody else has changed the file.
    void save();
    void saveAs();
    /// Saves or exports, as the file's extension says.
    void saveTo(const QString& fileName);
    /// Writes the scene to a file that doesn't become the scene's own.
    void exportTo(const QString& fileName);
    void chooseFileToOpen();
    void chooseFileToImport();
    void chooseFileToExport();
    void chooseFileToCompare();

    /// Goes on with `proceed` once the window may be closed: asks about changes, and waits for a scene that is being
    /// written. Doesn't go on when the user cancels.
    void leaveForQuit(const Action& proceed);
    /// Gives up the file that is read and all requests that wait, without a message: the window is closed.
    void abandon();

    /// Whether the file of the open scene has changed on disk.
    [[nodiscard]] DiskWatch& disk() noexcept { return m_disk; }

Q_SIGNALS:
    /// The open scene is about to become equal to its file.
    void aboutToReload();
    /// It is now. The text says so to the user.
    void reloaded(const QString& text);
    /// The content of a file has been added to the open scene by `import`.
    void added(NxNode* node);
    /// Something that the user should know of a file that was read, and that needs nothing to be done.
    void noted(const QString& text);
    /// The file can't be reloaded, or isn't because the scene has changes.
    void reloadRefused();
    /// The open scene is to be compared with the scene of that file.
    void readToCompare(const NxRef<NxGroup>& other, const QString& fileName);
    /// A job finished, failed, or was given up, which is no failure.
    void ended(const orvane::Result<>& result);

private:
    using Kind = FileRequest::Kind;
    using Loss = FileWork::Loss;
    using Next = FileWork::Next;

    void request(Kind kind, const Action& run, const QString& fileName = {});
    void requestForAnyScene(Kind kind, const Action& run);

    void leave(const Next& next);
    /// A scene that is to be opened.
    struct Opening {
        QString fileName; // or the name of the scene, in messages
        std::function<std::unique_ptr<SceneJob>()> makeJob;
        std::function<void(const ReadScene& read)> show;
        Opened opened;
    };

    void startOpen(const QString& fileName, const Opened& opened);
    void start(const Opening& opening);
    void startAdd(const QString& fileName);
    void startReadingToAdd(const QString& fileName, const FileWork::Reader& reader);
    void startCompare(const QString& fileName);
    [[nodiscard]] bool refusesBehindOpen(Kind kind, const QString& fileName);
    void takeScene(const ReadScene& read, const Opening& opening);
    void addToScene(const ReadScene& read, const QString& fileName);
    void endOpen(const Opened& opened, const orvane::Result<>& result);
    void loseOpen(const Opened& opened, const QString& reason, Loss loss);
    void cancelOpen(const Opened& opened, const QString& fileName);
    void forgetIfMissing(const QString& fileName);

    void startReload(SceneReload::Trigger trigger);

    Session& m_session;
    RecentFiles& m_recent;
    QWidget* m_window;
    JobMakers m_jobMakers;
    FileWork m_work;
    DiskWatch m_disk;
    SceneReload m_reload;
    SceneSaving m_saving;
};
