#pragma once

#include "orvane/app/base/Result.h"
#include "orvane/app/base/SliceClock.h"
#include "orvane/app/files/FileJob.h"

#include "meridane/base/ContentHash.h"
#include "meridane/base/Files.h"
#include "meridane/scene/file/NxSceneWriter.h"

#include <memory>

/// Writes a scene file in slices of some milliseconds. The file changes when the whole scene is written, or not at all.
/// The scene must not change meanwhile.
class SaveJob : public FileJob {
    Q_OBJECT

public:
    /// Relative file paths in the scene count from `pathFolder`, see `orvane::rebasedPath`.
    SaveJob(const NxRef<NxGroup>& scene, const QString& fileName, const QString& pathFolder = {},
        SliceClock::Clock clock = &std::chrono::steady_clock::now);
    ~SaveJob() override;

    void start() override;

protected:
    void runSlice() override;
    void release() override;

private:
    enum class Progress { Working, Done };

    orvane::Result<Progress> writeSlice();

    SliceClock::Clock m_clock;
    NxRef<NxGroup> m_scene;
    QString m_pathFolder;
    std::unique_ptr<NxSceneWriter> m_writer;
    std::unique_ptr<meridane::FileReplacer> m_file; // once it is open
    meridane::ContentHasher m_hasher; // of what is written
};
