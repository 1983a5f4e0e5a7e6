#pragma once

#include "orvane/app/files/FileWork.h"

#include "meridane/scene/compare/NxSceneUpdate.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class Session;

/// Makes the open scene equal to what its file holds, as one step of the history that can be undone.
///
/// Nodes that the file still has stay the same objects. The scene may be edited while the file is read. A file that
/// can't be read changes nothing.
class SceneReload : public QObject {
    Q_OBJECT

public:
    enum class Trigger {
        User,
        Watch, ///< the file has changed; a scene that has changes of the user stays as it is
    };
    using Load = std::function<std::unique_ptr<SceneJob>(const QString& fileName)>;

    /// The session and the work live longer.
    SceneReload(Session& session, FileWork& work, Load load);

    /// Reads the file of the open scene. Does nothing for a scene without a file.
    void start(Trigger trigger);

Q_SIGNALS:
    /// The scene is about to become the file's.
    void aboutToChange();
    /// The scene is the file's now. The text says so to the user.
    void done(const QString& text);
    /// The file can't be read, or the scene stays as it is because it has changes.
    void refused();
    /// The reload is done, has failed or was given up, which is no failure.
    void ended(const orvane::Result<>& result);

private:
    using Update = std::shared_ptr<NxSceneUpdate>;

    void prepare(const ReadScene& read, const QString& fileName);
    void finish(const ReadScene& read, const QString& fileName, const Update& update);
    void apply(const ReadScene& read, const QString& fileName, NxSceneChanges changes);
    void fail(const QString& message);
    void lose(const QString& reason, FileWork::Loss loss);

    Session& m_session;
    FileWork& m_work;
    Load m_load;
    Trigger m_trigger = Trigger::User;
    int m_attempts = 0;
    bool m_isEdited = false; // since the update was started
};
