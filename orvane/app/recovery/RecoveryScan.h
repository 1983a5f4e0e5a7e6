#pragma once

#include "orvane/app/base/LockedFile.h"

#include "meridane/base/FileHasher.h"
#include "meridane/base/Files.h"
#include "meridane/scene/recovery/RecoveryFileReader.h"

#include <QBasicTimer>
#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <string>
#include <vector>

class RecoveryFolder;

/// A recovery file that a program has left, and what it holds.
struct AbandonedScene {
    /// Locked, so that no other program offers it at the same time.
    std::unique_ptr<LockedFile> file;
    /// The scene as users know it; empty if not even that can be read.
    QString displayName;
    /// The file of the scene; empty if it has none.
    QString fileName;
    meridane::RecoveryCommit commit;
    /// Why it can't be recovered, a sentence without a full stop; empty if it can.
    QString problem;
};

/// Looks, in slices, for the recovery files that programs have left which didn't end properly. Files with nothing to
/// lose are deleted.
class RecoveryScan : public QObject {
    Q_OBJECT

public:
    explicit RecoveryScan(QObject* parent = nullptr);
    ~RecoveryScan() override;

    /// `found` follows for each, then `finished`.
    void start(const RecoveryFolder& folder);

Q_SIGNALS:
    void found(const std::shared_ptr<AbandonedScene>& scene);
    void finished();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    /// The work on one file.
    struct Work;

    void startNext();
    void readBytes();
    void readEntries();
    void hashBase();
    void end(const QString& problem);

    std::vector<std::unique_ptr<LockedFile>> m_waiting; // the first one last
    std::unique_ptr<Work> m_work;
    QBasicTimer m_slices;
};
