#include "orvane/app/recovery/RecoveryLog.h"

#include "orvane/app/recovery/RecoveryFolder.h"

#include <utility>

namespace {

/// What is kept in memory while there is nothing to lose. A scene that was only looked at needs no file, unless it is
/// large.
constexpr std::size_t largestDelay = std::size_t{1} << 20;
/// What may wait for the disk. Beyond it the capture pauses, so that a slow disk doesn't fill the memory.
constexpr std::size_t largestQueue = std::size_t{32} << 20;

} // namespace

RecoveryLog::RecoveryLog(meridane::Journal& journal, const meridane::RecoveryDescription& description,
    const RecoveryFolder& folder, QThread& thread)
    : m_capture(journal, description)
    , m_folder(folder)
    , m_thread(thread)
{
}

RecoveryLog::~RecoveryLog()
{
    if (m_writer != nullptr && m_steps == 0)
        m_writer->discard();
}

bool RecoveryLog::run(const meridane::WorkBudget& budget)
{
    if (m_hasFailed || (m_writer != nullptr && m_writer->waitingBytes() > largestQueue))
        return false; // in the latter case until bytes are written
    const bool hasMore = m_capture.hasWork() && m_capture.run(m_bytes, budget);
    if (m_capture.hasFailed())
        fail(tr("There isn't enough memory to keep changes for recovery."));
    else if (m_writer != nullptr || m_steps > 0 || m_bytes.size() > largestDelay)
        write();
    return hasMore && !m_hasFailed;
}

void RecoveryLog::setSteps(std::size_t steps)
{
    m_steps = steps;
    m_capture.setSteps(steps);
}

void RecoveryLog::write()
{
    if (m_writer == nullptr) {
        auto file = m_folder.createFile();
        if (!file)
            return fail(file.error());
        m_writer = std::make_unique<RecoveryWriter>(std::move(file).value(), m_thread);
        connect(m_writer.get(), &RecoveryWriter::failed, this, &RecoveryLog::fail);
        connect(m_writer.get(), &RecoveryWriter::written, this, &RecoveryLog::written);
    }
    if (!m_bytes.empty())
        m_writer->append(std::exchange(m_bytes, {}));
    if (m_capture.commitCount() == 0 || std::exchange(m_hasFinalName, true))
        return;
    if (m_finalName.isEmpty())
        m_finalName = RecoveryFolder::finalName(m_writer->fileName());
    m_writer->rename(m_finalName);
}

void RecoveryLog::fail(const QString& message)
{
    if (!std::exchange(m_hasFailed, true))
        Q_EMIT failed(message);
}
