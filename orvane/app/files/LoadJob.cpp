#include "orvane/app/files/LoadJob.h"

#include "orvane/app/base/TextConversion.h"

#include <exception>
#include <utility>

namespace {

constexpr std::size_t chunk = 1 << 20;
/// The share of the progress that goes to bringing the file into memory.
constexpr double readingShare = 0.1;

// The message names the file already.
NxReadFailure withMessage(const std::string& message)
{
    return {{}, 0, 0, message};
}

} // namespace

LoadJob::LoadJob(const QString& fileName, SliceClock::Clock clock)
    : SceneJob(fileName)
    , m_clock(clock)
{
}

LoadJob::~LoadJob() = default;

void LoadJob::start()
{
    startSlices();
}

void LoadJob::release()
{
    m_reader.reset();
}

void LoadJob::readSlice()
{
    if (m_reader == nullptr)
        readBytes();
    else
        readScene();
}

void LoadJob::readBytes()
{
    const SliceClock slice(m_clock);
    if (!std::exchange(m_opened, true)) {
        if (auto failure = open())
            return failToRead(std::move(*failure));
    }
    while (!m_atEnd && !slice.isSpent()) {
        if (const auto message = readChunk())
            return failToRead(withMessage(*message));
        if (auto failure = checkSize(m_bytes.size()))
            return failToRead(std::move(*failure));
    }
    if (m_atEnd) {
        setContent(m_hasher.hash());
        m_reader = std::make_unique<NxSceneReader>(std::move(m_bytes), orvane::toStdFileName(fileName()));
    } else if (m_file.size() > 0) {
        Q_EMIT progressed(readingShare * static_cast<double>(m_bytes.size()) / static_cast<double>(m_file.size()));
    }
}

std::optional<std::string> LoadJob::readChunk()
{
    const std::size_t before = m_bytes.size();
    auto message = m_file.read(m_bytes, chunk, m_atEnd);
    m_hasher.add(std::string_view(m_bytes).substr(before));
    return message;
}

std::optional<NxReadFailure> LoadJob::open()
{
    constexpr std::size_t beginning = 4096;
    const std::string name = orvane::toStdFileName(fileName());
    auto message = m_file.open(name);
    if (!message)
        message = readChunk();
    if (message)
        return withMessage(*message);
    if (auto failure = NxSceneReader::checkBeginning(m_bytes.substr(0, beginning), name))
        return failure;
    if (auto failure = checkSize(m_file.size()))
        return failure;
    try {
        // One block for all, which isn't moved as it grows.
        m_bytes.reserve(m_file.size() + chunk);
    } catch (const std::exception&) {
        return withMessage(name + ": the file doesn't fit in memory");
    }
    return std::nullopt;
}

std::optional<NxReadFailure> LoadJob::checkSize(std::size_t size) const
{
    if (size <= largestFile)
        return std::nullopt;
    return withMessage(
        orvane::toStdFileName(fileName()) + ": the file has more than 4 GiB, which is the most that is read");
}

void LoadJob::readScene()
{
    switch (m_reader->step(SliceClock(m_clock))) {
    case NxSceneReader::State::Working:
        Q_EMIT progressed(readingShare + (1 - readingShare) * m_reader->progress());
        break;
    case NxSceneReader::State::Failed:
        failToRead(m_reader->failure());
        break;
    case NxSceneReader::State::Done:
        finishWith(m_reader->takeScene());
        break;
    }
}
