#pragma once

#include "orvane/transfer/SpaceNote.h"

#include "meridane/base/ContentHash.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/file/NxReadFailure.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <QBasicTimer>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <utility>

/// Long work on a file, done in slices or by another process, so that the window never waits for it.
///
/// `start` returns at once. The job ends with exactly one of `finished`, `failed` and `cancelled`, emitted from the
/// event loop, and does nothing afterwards. A failure is reported to the user by the object that started the job, and
/// by nobody else. Destroying a job ends it without a signal; a file being written keeps its old content.
class FileJob : public QObject {
    Q_OBJECT

public:
    explicit FileJob(const QString& fileName)
        : m_fileName(fileName)
    {
    }

    virtual void start() = 0;
    /// Ends the job; `cancelled` follows. Does nothing when the job has ended.
    void cancel();

    [[nodiscard]] const QString& fileName() const noexcept { return m_fileName; }
    /// The content of the file as the job read or wrote it, once it has finished; nothing for a job that doesn't know.
    [[nodiscard]] const std::optional<meridane::ContentHash>& content() const noexcept { return m_content; }

Q_SIGNALS:
    /// The share of the work that is done, 0 to 1, or -1 while it isn't known.
    void progressed(double share);
    void finished();
    /// One message that names the file, what is wrong and where.
    void failed(const QString& message);
    void cancelled();

protected:
    void timerEvent(QTimerEvent* event) override;

    /// Lets `runSlice` be called in each turn of the event loop, until the job ends or `pauseSlices` is called.
    void startSlices();
    void pauseSlices();
    /// Does some milliseconds of the work.
    virtual void runSlice() { }
    /// Closes files and ends processes. Called once, when the job ends.
    virtual void release() { }

    void setContent(const meridane::ContentHash& content) { m_content = content; }
    /// Ends the job with `finished`.
    void finish();
    /// Ends the job with `failed`. Does nothing when the job has ended.
    void fail(const QString& message);

private:
    void end();

    QString m_fileName;
    std::optional<meridane::ContentHash> m_content;
    QBasicTimer m_slices;
    bool m_ended = false;
};

namespace meridane {
class Journal;
}

/// What a job has read: the scene, a journal of it that doesn't record yet, and the content of the file.
struct ReadScene {
    NxRef<NxGroup> scene;
    std::shared_ptr<meridane::Journal> journal;
    std::optional<meridane::ContentHash> content = {};
    bool isConverted = false; ///< see `orvane::SpaceNote`
};

/// A job that ends with a scene.
class SceneJob : public FileJob {
    Q_OBJECT

public:
    explicit SceneJob(const QString& fileName);
    ~SceneJob() override;

    /// The scene, once the job has finished; null after the first call.
    [[nodiscard]] NxRef<NxGroup> takeScene() { return take().scene; }
    /// The same with its journal.
    [[nodiscard]] ReadScene take() { return std::exchange(m_read, {}); }
    /// What was wrong with the file, once the job has failed: the message of `failed`, and its place in the file.
    [[nodiscard]] const NxReadFailure& failure() const noexcept { return m_failure; }
    /// What of the file isn't in the scene, or not as it was, once the job has finished: a text for each.
    [[nodiscard]] const QStringList& warnings() const noexcept { return m_warnings; }
    /// What became of the unit and the up axis of the file, a sentence; empty if that is nothing to speak of.
    [[nodiscard]] const QString& note() const noexcept { return m_note; }
    /// The warnings as one message that names the file.
    [[nodiscard]] QString warningText() const;

protected:
    /// Does some milliseconds of the reading.
    virtual void readSlice() { }
    /// Ends the job with that scene, after some more slices in which its journal is prepared.
    void finishWith(const NxRef<NxGroup>& scene);
    /// The same at once, for a small scene.
    void finishAtOnceWith(const NxRef<NxGroup>& scene);
    void setWarnings(const QStringList& warnings) { m_warnings = warnings; }
    void setNote(const orvane::SpaceNote& note);
    /// Ends the job with `failed`.
    void failToRead(NxReadFailure failure);

private:
    void runSlice() final;

    ReadScene m_numbered; // while the journal is prepared
    ReadScene m_read; // once the job has finished
    NxReadFailure m_failure;
    QStringList m_warnings;
    QString m_note;
    bool m_isConverted = false;
};
