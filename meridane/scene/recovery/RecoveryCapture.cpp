#include "meridane/scene/recovery/RecoveryCapture.h"

#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/recovery/detail/ChangeCapture.h"
#include "meridane/scene/recovery/detail/EntryWriter.h"

#include <cassert>
#include <new>
#include <stdexcept>
#include <utility>

namespace meridane {

namespace {

// What is kept between slices.
constexpr std::size_t keptBytes = std::size_t{1} << 20U;

} // namespace

RecoveryCapture::RecoveryCapture(Journal& journal, RecoveryDescription description, Clock clock)
    : m_description(std::move(description))
    , m_clock(clock)
    , m_changes(std::make_unique<ChangeCapture>(journal, m_description.base))
    , m_entries(std::make_unique<EntryWriter>())
{
    assert(journal.isRecording() && "the journal reports changes");
    m_description.begun = clock();
}

RecoveryCapture::~RecoveryCapture() = default;

bool RecoveryCapture::hasWork() const noexcept
{
    return !hasFailed() && (m_byteCount == 0 || m_needsCommit || m_changes->hasWork());
}

bool RecoveryCapture::hasFailed() const noexcept
{
    return m_changes->hasFailed();
}

bool RecoveryCapture::run(std::string& bytes, const WorkBudget& budget)
{
    const std::size_t size = bytes.size();
    bool more = false;
    try {
        more = !hasFailed() && capture(bytes, budget);
    } catch (const std::bad_alloc&) {
        m_changes->setFailed();
    } catch (const std::length_error&) {
        m_changes->setFailed();
    }
    if (hasFailed())
        bytes.resize(size);
    m_byteCount += bytes.size() - size;
    return more && !hasFailed();
}

bool RecoveryCapture::capture(std::string& bytes, const WorkBudget& budget)
{
    const bool more = m_changes->run(m_operations, budget);
    if (hasFailed())
        return false;
    if (m_byteCount == 0 && m_changes->hasBase())
        writeDescription(bytes);
    if (!m_operations.empty()) {
        m_entries->operations(bytes, m_operations);
        m_operations.clear();
        if (m_operations.capacity() > keptBytes)
            m_operations.shrink_to_fit();
        m_needsCommit = true;
    }
    if (!more && m_needsCommit)
        writeCommit(bytes);
    return more;
}

void RecoveryCapture::writeDescription(std::string& bytes)
{
    m_description.base = m_changes->base();
    m_description.nodeCount = m_changes->baseNodeCount();
    m_entries->begin(bytes, m_description);
    // Without a file, the commit that has the whole scene is needed even if the scene is empty.
    m_needsCommit = m_description.base == RecoveryDescription::Base::Nothing;
}

void RecoveryCapture::writeCommit(std::string& bytes)
{
    m_entries->commit(bytes, {m_clock(), m_steps});
    ++m_commitCount;
    m_needsCommit = false;
}

} // namespace meridane
