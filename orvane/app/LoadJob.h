#pragma once

#include "orvane/app/FileJob.h"
#include "orvane/app/SliceClock.h"

#include "meridane/scene/Files.h"
#include "meridane/scene/NxSceneReader.h"

#include <QBasicTimer>

#include <memory>
#include <string>

/// Reads a scene file in slices of some milliseconds.
///
/// A failure is posted as an `NxReadError` too.
class LoadJob : public SceneJob {
    Q_OBJECT

public:
    explicit LoadJob(const QString& fileName, SliceClock::Clock clock = &std::chrono::steady_clock::now);
    ~LoadJob() override;

    void start() override;
    void cancel() override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void readBytes();
    void readScene();
    void fail(const std::string& message);

    SliceClock::Clock m_clock;
    QBasicTimer m_timer;
    meridane::FileReader m_file;
    std::string m_bytes;
    std::unique_ptr<NxSceneReader> m_reader; // once the file is in memory
    bool m_opened = false;
};
