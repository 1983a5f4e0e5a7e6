#pragma once

#include "orvane/app/base/SliceClock.h"
#include "orvane/app/files/FileJob.h"

#include "meridane/scene/compare/NxSceneComparison.h"

#include <optional>
#include <utility>

/// Compares the open scene with another one in slices of some milliseconds. It has the name of the other one's file.
class ComparisonJob : public FileJob {
    Q_OBJECT

public:
    ComparisonJob(const NxRef<NxGroup>& scene, const NxRef<NxGroup>& other, const QString& fileName,
        SliceClock::Clock clock = &std::chrono::steady_clock::now);

    void start() override;
    /// The result, once the job has finished; empty after the first call.
    [[nodiscard]] NxSceneDifferences takeDifferences() { return std::exchange(m_differences, {}); }

protected:
    void runSlice() override;
    void release() override;

private:
    std::optional<NxSceneComparison> m_comparison; // until the job has ended
    NxSceneDifferences m_differences;
    SliceClock::Clock m_clock;
};
