#pragma once

#include "orvane/app/welcome/BackgroundJobs.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <functional>

/// What is known of a file without reading it.
struct FileState {
    enum class Kind {
        Unknown, ///< nobody has looked yet
        There,
        Missing,
        NoAnswer, ///< its drive hasn't answered in time, and may still do so
    };
    Kind kind = Kind::Unknown;
    QDateTime changed; ///< when the file was written last, if it is there
};

/// Finds out which files there are, without ever asking the file system in the thread of the window.
class FileLookup : public QObject {
    Q_OBJECT

public:
    /// Looks at a file; may block for as long as it likes. Called in other threads, several at a time.
    using Look = std::function<FileState(const QString& fileName)>;
    /// So many files are looked at at a time.
    static constexpr int mostThreads = 4;

    explicit FileLookup(Look look = &FileLookup::look, std::chrono::milliseconds patience = std::chrono::seconds(2),
        QObject* parent = nullptr);
    ~FileLookup() override;

    /// Asks for the state of a file. `found` follows: `NoAnswer` after a while without one, and the answer, however
    /// late it is.
    void request(const QString& fileName);
    /// What is on disk.
    [[nodiscard]] static FileState look(const QString& fileName);

Q_SIGNALS:
    void found(const QString& fileName, const FileState& state);

private:
    void take(const QString& fileName, const FileState& state);
    void reportLate();

    Look m_look;
    std::chrono::milliseconds m_patience;
    BackgroundJobs m_jobs;
    QHash<QString, QElapsedTimer> m_asked; // that have no answer yet, and haven't been reported as late
    QTimer m_timer;
};
