#pragma once

#include "orvane/app/base/SliceClock.h"
#include "orvane/app/files/FileJob.h"

#include "meridane/scene/compare/NxSceneUpdate.h"

#include <memory>

/// Finds out in slices what makes the open scene equal to one that was read. It has the name of that one's file, and
/// changes nothing.
class UpdateJob : public SceneJob {
    Q_OBJECT

public:
    UpdateJob(const std::shared_ptr<NxSceneUpdate>& update, const QString& fileName,
        SliceClock::Clock clock = &std::chrono::steady_clock::now);

    void start() override;

protected:
    void readSlice() override;

private:
    std::shared_ptr<NxSceneUpdate> m_update;
    SliceClock::Clock m_clock;
};
