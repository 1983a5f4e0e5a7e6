#pragma once

#include "orvane/app/base/SliceClock.h"
#include "orvane/app/files/disk/DiskContent.h"
#include "orvane/app/files/disk/FileStamp.h"

#include "meridane/base/FileHasher.h"

#include <QBasicTimer>
#include <QObject>

#include <memory>
#include <string>

/// Finds out once what is on disk under the name of a file, in slices of some milliseconds. Destroying it ends it.
class FileCheck : public QObject {
    Q_OBJECT

public:
    FileCheck(const QString& fileName, QObject* parent, SliceClock::Clock clock = &std::chrono::steady_clock::now);
    ~FileCheck() override;

    /// `finished` follows once, from the event loop.
    void start();

Q_SIGNALS:
    void finished(const DiskContent& content);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    [[nodiscard]] DiskContent failure() const;

    std::string m_path;
    SliceClock::Clock m_clock;
    FileStamp m_stamp; // before the reading
    std::unique_ptr<meridane::FileHasher> m_hasher;
    int m_restarts = 0;
    QBasicTimer m_timer;
};
