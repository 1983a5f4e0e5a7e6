#pragma once

#include <QString>
#include <QStringList>

#include <deque>
#include <functional>
#include <optional>

/// Something that the user asked for in the File menu or its like.
struct FileRequest {
    enum class Kind { New, Open, Add, Compare, Save, SaveAs, Export, Close, Quit };
    /// For a request that any scene will do for.
    static constexpr int anyScene = 0;

    Kind kind;
    QString fileName; // empty where the kind has none, or the user is still to choose it
    int scene; // the number of the scene that it was asked for
    std::function<void()> run;
    std::function<void(const QString& reason)> lost = {}; // called in place of `run` when it is given up

    /// What it does, such as "opening robot.mrd", for a message.
    [[nodiscard]] static QString name(Kind kind, const QString& fileName);
    [[nodiscard]] QString name() const { return name(kind, fileName); }
};

/// The requests that wait until they can be carried out, in the order in which they were made.
class FileRequests {
public:
    /// Appends a request. One that repeats the last isn't kept, unless it has a `lost` to be called, or adds a model,
    /// of which a user may want several.
    void push(FileRequest request);
    /// Takes the first request that may run out of the queue.
    [[nodiscard]] std::optional<FileRequest> takeFirst(const std::function<bool(const FileRequest&)>& mayRun);
    /// Gives up the requests for another scene than the one of that number. The result names those that weren't to
    /// close it anyway.
    QStringList dropOtherScenes(int scene, const QString& reason);
    /// Gives up the requests that leave the open scene. The result names them.
    QStringList dropLeaving(const QString& reason);

private:
    using Kind = FileRequest::Kind;

    QStringList dropIf(const std::function<bool(const FileRequest&)>& condition, const QString& reason);

    std::deque<FileRequest> m_waiting;
};
