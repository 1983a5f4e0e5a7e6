#pragma once

#include "orvane/app/base/LockedFile.h"

#include <QBasicTimer>
#include <QObject>
#include <QString>

#include <chrono>
#include <memory>
#include <string>

/// The part of a `RecoveryWriter` that lives in the thread of the disk. It only knows the file and bytes.
class RecoveryWriterWork : public QObject {
    Q_OBJECT

public:
    /// How soon the disk has what was appended.
    static constexpr std::chrono::seconds syncInterval{5};

    explicit RecoveryWriterWork(std::unique_ptr<LockedFile> file);
    ~RecoveryWriterWork() override;

    void append(const std::string& bytes);
    void rename(const QString& fileName);
    void discard();

Q_SIGNALS:
    void written(qulonglong bytes);
    void failed(const QString& message);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void sync();
    void check(const orvane::Result<>& result);

    std::unique_ptr<LockedFile> m_file;
    QBasicTimer m_syncTimer; // runs while the disk may not have everything
    bool m_hasFailed = false;
};
