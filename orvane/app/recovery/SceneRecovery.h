#pragma once

#include "orvane/app/base/LockedFile.h"
#include "orvane/app/recovery/RecoveryFolder.h"
#include "orvane/app/recovery/RecoveryThread.h"

#include <QBasicTimer>
#include <QObject>
#include <QString>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>

class OrvServices;
class RecoveryLog;
class SceneDocument;

/// Keeps the open scene as it is, with its unsaved changes, in a recovery file, so that a crash loses at most the last
/// second. The file begins from the file of the scene, or holds the whole scene if there is none. When it becomes long,
/// a new one takes its place. It is deleted when the scene is saved, and when it is closed.
///
/// Thread of the user interface only; the disk is written in another thread.
class SceneRecovery : public QObject {
    Q_OBJECT

public:
    struct Limits {
        /// A file of more bytes, and of more than twice those that it began with, is replaced.
        std::uint64_t longest = std::uint64_t{256} << 20;
        /// After a failure a new file is tried after this time.
        std::chrono::milliseconds retry = std::chrono::minutes(1);
    };

    /// Services and document live longer.
    SceneRecovery(OrvServices& services, SceneDocument& document, const RecoveryFolder& folder, const Limits& limits,
        QObject* parent = nullptr);
    ~SceneRecovery() override;

    /// The open scene was recovered from that file. Call it at once; a new file replaces it as soon as it has the
    /// scene.
    void replaceFile(std::unique_ptr<LockedFile> recovered);
    /// The scene's file doesn't hold any more what the scene was read from or saved as, so that changes can't begin
    /// from it.
    void leaveFile();
    /// Whether a new file is being written that will take the place of the present one.
    [[nodiscard]] bool isReplacing() const noexcept { return m_replacement != nullptr; }

Q_SIGNALS:
    /// The file has the scene as it is now: a crash of the program would lose nothing. A crash of the system may lose
    /// what was written within the last seconds.
    void kept();
    /// Changes can't be kept at the moment. Not emitted again before `works`.
    void failed(const QString& message);
    /// Changes are kept again.
    void works();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void begin();
    void end();
    [[nodiscard]] std::unique_ptr<RecoveryLog> makeLog(bool mayUseFile);
    void beginReplacement();
    void finishReplacement();
    void schedule();
    void work();
    void checkLogs();
    void discardRecovered();
    void handleFailure(const QString& message);
    [[nodiscard]] std::size_t steps() const;

    OrvServices& m_services;
    SceneDocument& m_document;
    RecoveryFolder m_folder;
    Limits m_limits;
    RecoveryThread m_thread;
    std::unique_ptr<LockedFile> m_recovered;
    std::unique_ptr<RecoveryLog> m_log;
    std::unique_ptr<RecoveryLog> m_replacement; // takes the place of the log when it has the whole scene
    QBasicTimer m_workTimer;
    QBasicTimer m_retryTimer;
    std::uint64_t m_firstSize = 0; // of the log, with its first commit
    int m_cleanDepth = 0; // of the history, when the scene was saved
    bool m_isReported = false;
};
