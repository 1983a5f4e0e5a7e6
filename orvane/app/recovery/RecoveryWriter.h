#pragma once

#include "orvane/app/base/LockedFile.h"

#include <QObject>
#include <QString>
#include <QThread>

#include <cstddef>
#include <memory>
#include <string>

class RecoveryWriterWork;

/// Writes one file in a thread of its own, so that the user never waits for the disk. After a failure nothing more is
/// written: what the file holds is whole up to a place that its reader finds.
///
/// Thread of the user interface only.
class RecoveryWriter : public QObject {
    Q_OBJECT

public:
    /// The file is written in that thread, which must live longer and run an event loop.
    RecoveryWriter(std::unique_ptr<LockedFile> file, QThread& thread);
    /// Writes what waits and keeps the file, if `discard` wasn't called. Doesn't wait for it.
    ~RecoveryWriter() override;

    /// Appends bytes, and syncs the file to the disk within `RecoveryWriterWork::syncInterval`.
    void append(std::string bytes);
    /// Gives the file another name in its folder, once what was appended before is on the disk. A file of that name is
    /// replaced.
    void rename(const QString& fileName);
    /// The name that was given last.
    [[nodiscard]] const QString& fileName() const noexcept { return m_fileName; }
    /// Deletes the file. Nothing may be appended afterwards.
    void discard();

    /// Whether everything that was asked for is done.
    [[nodiscard]] bool isDone() const noexcept { return m_waitingTasks == 0; }
    /// How many bytes wait to be written.
    [[nodiscard]] std::size_t waitingBytes() const noexcept { return m_waitingBytes; }
    /// How many bytes were appended in all.
    [[nodiscard]] std::size_t bytes() const noexcept { return m_bytes; }

Q_SIGNALS:
    /// Bytes were written, or the file was renamed; less waits now.
    void written();
    /// Emitted once, with a message that names the file.
    void failed(const QString& message);

private:
    RecoveryWriterWork* m_work = nullptr; // lives in the thread, and is deleted there
    QString m_fileName;
    int m_waitingTasks = 0;
    std::size_t m_waitingBytes = 0;
    std::size_t m_bytes = 0;
};
