#pragma once

#include "orvane/app/base/SliceClock.h"
#include "orvane/app/files/FileJob.h"

#include "meridane/base/Files.h"
#include "meridane/scene/recovery/RecoveryFileReader.h"
#include "meridane/scene/recovery/RecoveryReplay.h"

#include <memory>
#include <optional>
#include <string>

class LoadJob;

/// Makes the scene that a recovery file has, in slices of some milliseconds: reads it, then the file of the scene if
/// the changes begin from it, and replays them.
class RecoverJob : public SceneJob {
    Q_OBJECT

public:
    /// `displayName` is the name of the scene in messages.
    RecoverJob(const QString& recoveryFileName, const QString& displayName);
    ~RecoverJob() override;

    void start() override;

    /// What the recovery file belongs to, once the job has finished.
    [[nodiscard]] const meridane::RecoveryDescription& description() const { return m_reader->description(); }

protected:
    void readSlice() override;
    void release() override;

private:
    void readBytes();
    void readEntries();
    void readBase();
    void takeBase();
    void replay();
    void failToRecover(const QString& reason);

    QString m_recoveryFileName;
    meridane::FileReader m_file;
    std::string m_bytes;
    std::unique_ptr<meridane::RecoveryFileReader> m_reader; // once the bytes are there
    std::unique_ptr<LoadJob> m_base; // while the file of the scene is read
    std::unique_ptr<meridane::RecoveryReplay> m_replay;
    bool m_opened = false;
};
