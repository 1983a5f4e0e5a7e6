#pragma once

#include "meridane/scene/NxGroup.h"
#include "meridane/scene/NxRef.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class FileJob;
class InputBlock;
class JobBar;
class MessageBar;
class RecentFiles;
class SceneJob;
class Session;

/// What happens to the scene and its file when the user opens, imports, saves, exports or closes: one job at a time,
/// and a question ahead of whatever would lose changes.
///
/// An open that fails leaves the open scene as it is. While a scene is written, the user can't change it.
class FileFlow : public QObject {
    Q_OBJECT

public:
    using Action = std::function<void()>;

    FileFlow(Session& session, RecentFiles& recent, MessageBar& messages, JobBar& jobBar, QWidget* window);
    ~FileFlow() override;

    void newScene();
    void closeScene();
    void open(const QString& fileName);
    /// Adds the content of a file to the open scene, in a group of the file's name, as one step of the history; opens
    /// it when no scene is open.
    void import(const QString& fileName);
    /// Saves to the scene's own file, or asks for one.
    void save();
    void saveAs();
    void saveTo(const QString& fileName);
    /// Writes the scene to a file that doesn't become the scene's own.
    void exportTo(const QString& fileName);

    /// Goes on with `proceed` once nothing can be lost: asks about changes, and waits for a scene that is being
    /// written. Doesn't go on when the user cancels.
    void leaveScene(const Action& proceed);
    /// Ends a job that only reads.
    void cancelLoading();
    [[nodiscard]] bool isBusy() const noexcept { return static_cast<bool>(m_job); }

Q_SIGNALS:
    /// A job ended; `error` is empty unless it failed.
    void ended(const QString& error);

private:
    void load(const QString& fileName, std::function<void(NxRef<NxGroup>)> take);
    void write(const QString& fileName, const QString& text, const Action& done);
    void run(std::unique_ptr<FileJob> job, const QString& text, const Action& done);
    void end(const QString& error);
    void saveThen(const Action& proceed);
    void chooseSaveFile(const Action& proceed);
    void addToScene(const NxRef<NxGroup>& content, const QString& fileName);
    [[nodiscard]] bool mayWrite();

    Session& m_session;
    RecentFiles& m_recent;
    MessageBar& m_messages;
    JobBar& m_jobBar;
    QWidget* m_window;
    std::unique_ptr<FileJob> m_job;
    std::unique_ptr<InputBlock> m_block; // while a scene is written
    Action m_afterJob; // what waits for the job
};
