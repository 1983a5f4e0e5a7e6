#pragma once

#include "orvane/app/base/SliceClock.h"
#include "orvane/app/files/FileJob.h"

#include "meridane/base/Files.h"
#include "meridane/scene/file/NxSceneReader.h"

#include <QBasicTimer>

#include <cstddef>
#include <memory>
#include <string>

/// Reads a scene file in slices of some milliseconds. The first line is checked before the rest is read.
///
/// A failure is posted as an `NxReadError` too.
class LoadJob : public SceneJob {
    Q_OBJECT

public:
    /// The most bytes that a scene file may have.
    static constexpr std::size_t largestFile = std::size_t{4} << 30;

    explicit LoadJob(const QString& fileName, SliceClock::Clock clock = &std::chrono::steady_clock::now);
    ~LoadJob() override;

    void start() override;
    void cancel() override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void readBytes();
    /// Opens the file and looks at its beginning. False after a failure.
    bool open();
    void failForSize();
    void readScene();
    void fail(const std::string& message);
    void fail(const NxReadFailure& failure);

    SliceClock::Clock m_clock;
    QBasicTimer m_timer;
    meridane::FileReader m_file;
    std::string m_bytes;
    std::unique_ptr<NxSceneReader> m_reader; // once the file is in memory
    bool m_opened = false;
    bool m_atEnd = false;
};
