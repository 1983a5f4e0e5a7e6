#pragma once

#include "orvane/app/base/SliceClock.h"
#include "orvane/app/files/FileJob.h"

#include "meridane/base/ContentHash.h"
#include "meridane/base/Files.h"
#include "meridane/scene/file/NxSceneReader.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>

/// Reads a scene file in slices of some milliseconds. The first line is checked before the rest is read.
class LoadJob : public SceneJob {
    Q_OBJECT

public:
    /// The most bytes that a scene file may have.
    static constexpr std::size_t largestFile = std::size_t{4} << 30;

    explicit LoadJob(const QString& fileName, SliceClock::Clock clock = &std::chrono::steady_clock::now);
    ~LoadJob() override;

    void start() override;

protected:
    void readSlice() override;
    void release() override;

private:
    void readBytes();
    /// The result is the message of a failure.
    [[nodiscard]] std::optional<std::string> readChunk();
    /// Opens the file and checks its beginning.
    [[nodiscard]] std::optional<NxReadFailure> open();
    [[nodiscard]] std::optional<NxReadFailure> checkSize(std::size_t size) const;
    void readScene();

    SliceClock::Clock m_clock;
    meridane::FileReader m_file;
    std::string m_bytes;
    meridane::ContentHasher m_hasher; // of the file, as it is read
    std::unique_ptr<NxSceneReader> m_reader; // once the file is in memory
    bool m_opened = false;
    bool m_atEnd = false;
};
