#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <deque>
#include <functional>
#include <optional>

/// What the user has requested of the open scene or a file, such as an action of the File menu.
struct FileRequest {
    enum class Kind { New, Open, Add, Compare, Reload, Save, SaveAs, Export, Close, Quit };
    /// The `scene` of a request that may run whichever scene is open.
    static constexpr int anyScene = 0;

    Kind kind;
    QString fileName; // empty for a kind without a file, or if the user chooses it later
    int scene; // the number of the scene that was open then, or `anyScene`
    std::function<void()> run;
    std::function<void(const QString& reason)> lost = {}; // called instead of `run` if the request is dropped

    /// What it does, such as "opening robot.mrd", for a message.
    [[nodiscard]] static QString name(Kind kind, const QString& fileName);
    [[nodiscard]] QString name() const { return name(kind, fileName); }
};

/// The requests that wait because another is being carried out, in the order in which they were made.
class FileRequests {
    Q_DECLARE_TR_FUNCTIONS(FileRequests)

public:
    /// Appends a request. Ignores one that equals the last, except that a model may be added several times and that a
    /// request with `lost` is always kept, so that one of its functions is called.
    void push(FileRequest request);
    /// Removes and returns the first request for which `mayRun` returns true.
    [[nodiscard]] std::optional<FileRequest> takeFirst(const std::function<bool(const FileRequest&)>& mayRun);
    /// Drops the requests for other scenes than that one. Returns the names of the dropped ones, except for those that
    /// close a scene, since theirs is closed already.
    QStringList dropOtherScenes(int scene, const QString& reason);
    /// Drops the requests that replace or close the open scene. Returns their names.
    QStringList dropLeaving(const QString& reason);

private:
    using Kind = FileRequest::Kind;

    QStringList dropIf(const std::function<bool(const FileRequest&)>& condition, const QString& reason);

    std::deque<FileRequest> m_waiting;
};
