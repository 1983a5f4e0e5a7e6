#pragma once

#include "orvane/app/base/SliceClock.h"
#include "orvane/app/files/FileJob.h"

#include "meridane/base/Files.h"
#include "meridane/scene/file/NxSceneWriter.h"

#include <QBasicTimer>

#include <memory>
#include <string>

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
    void cancel() override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    [[nodiscard]] std::optional<std::string> writeSlice(bool& done);

    SliceClock::Clock m_clock;
    QBasicTimer m_timer;
    NxRef<NxGroup> m_scene;
    QString m_pathFolder;
    std::unique_ptr<NxSceneWriter> m_writer;
    std::unique_ptr<meridane::FileReplacer> m_file; // once it is open
};
