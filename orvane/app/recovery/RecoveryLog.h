#pragma once

#include "orvane/app/base/Result.h"
#include "orvane/app/recovery/RecoveryWriter.h"

#include "meridane/scene/recovery/RecoveryCapture.h"

#include <QObject>
#include <QString>

#include <cstddef>
#include <memory>
#include <string>

class RecoveryFolder;

/// One recovery file of the open scene: captures changes and writes them. There is no file on the disk before there is
/// something to lose.
///
/// Thread of the user interface only.
class RecoveryLog : public QObject {
    Q_OBJECT

public:
    /// The journal records, and lives longer, as do folder and thread.
    RecoveryLog(meridane::Journal& journal, const meridane::RecoveryDescription& description,
        const RecoveryFolder& folder, QThread& thread);
    /// Deletes the file if there is nothing to lose; else it stays, as after a crash.
    ~RecoveryLog() override;

    /// Does some of the work that there is, no more than about `budget`. Returns whether there is more to do at once.
    bool run(const meridane::WorkBudget& budget);
    /// Lets the file replace that one as soon as it has a state of the scene. To be called before that.
    void setReplaced(const QString& fileName) { m_finalName = fileName; }
    /// The name of the file, or the one that it will have; empty while there is none.
    [[nodiscard]] const QString& finalName() const noexcept { return m_finalName; }
    /// Whether `run` has work to do.
    [[nodiscard]] bool hasWork() const noexcept
    {
        return !m_hasFailed && (m_capture.hasWork() || (m_steps > 0 && !m_bytes.empty()));
    }
    /// How many steps the user would lose without the file. At 0 no file is made, and a file that there is may go.
    void setSteps(std::size_t steps);
    /// Whether nothing of the scene would be lost: its changes are captured, and written if there is anything to lose.
    [[nodiscard]] bool isSafe() const noexcept
    {
        return !m_hasFailed && m_capture.commitCount() > 0 && !hasWork() && (m_writer == nullptr || m_writer->isDone());
    }
    /// Whether the changes begin from the scene's own file.
    [[nodiscard]] bool needsSceneFile() const noexcept
    {
        return m_capture.description().base == meridane::RecoveryDescription::Base::File;
    }
    [[nodiscard]] bool hasFile() const noexcept { return m_writer != nullptr; }
    [[nodiscard]] std::uint64_t byteCount() const noexcept { return m_capture.byteCount(); }

Q_SIGNALS:
    /// Bytes were written, so that `run` may go on if it paused.
    void written();
    /// The file can't be made or written; nothing more is done. Emitted once, with a message that names the file.
    void failed(const QString& message);

private:
    void write();
    void fail(const QString& message);

    meridane::RecoveryCapture m_capture;
    const RecoveryFolder& m_folder;
    QThread& m_thread;
    std::unique_ptr<RecoveryWriter> m_writer; // once there is a file
    std::string m_bytes; // that aren't written yet
    QString m_finalName;
    bool m_hasFinalName = false;
    std::size_t m_steps = 0;
    bool m_hasFailed = false;
};
