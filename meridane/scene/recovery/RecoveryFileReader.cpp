#include "meridane/scene/recovery/RecoveryFileReader.h"

#include "meridane/scene/recovery/detail/ByteReader.h"
#include "meridane/scene/recovery/detail/RecoveryFormat.h"

#include <new>
#include <utility>

namespace meridane {

using RecoveryFormat::EntryKind;

/// An entry whose checksum is right.
struct RecoveryFileReader::Entry {
    std::uint8_t kind = 0;
    std::string_view content;
};

namespace {

// How many short entries are read between two looks at the clock, in bytes.
constexpr std::size_t bytesPerLook = std::size_t{1} << 20U;

bool readTime(ByteReader& reader, std::chrono::system_clock::time_point& time)
{
    using std::chrono::milliseconds;
    using Clock = std::chrono::system_clock;
    std::uint64_t bits = 0;
    if (!reader.wideNumber(bits))
        return false;
    const milliseconds sinceEpoch(static_cast<std::int64_t>(bits));
    const auto greatest = std::chrono::duration_cast<milliseconds>(Clock::duration::max());
    if (sinceEpoch > greatest || sinceEpoch < -greatest)
        return false;
    time = Clock::time_point(sinceEpoch);
    return true;
}

} // namespace

RecoveryFileReader::RecoveryFileReader(std::string bytes)
    : m_bytes(std::move(bytes))
{
}

RecoveryFileReader::State RecoveryFileReader::step(const WorkBudget& budget)
{
    try {
        if (m_state == State::Working && m_position == 0)
            readFirstLine();
        while (m_state == State::Working) {
            const std::size_t start = m_position;
            while (m_state == State::Working && m_position - start < bytesPerLook)
                readEntry();
            if (budget.isSpent())
                break;
        }
    } catch (const std::bad_alloc&) {
        fail("it doesn't fit in memory");
    }
    return m_state;
}

RecoveryFileReader::State RecoveryFileReader::run()
{
    return step(std::chrono::hours(1));
}

void RecoveryFileReader::readFirstLine()
{
    constexpr std::size_t longestLine = 64;
    const std::string_view beginning = std::string_view(m_bytes).substr(0, longestLine);
    if (!beginning.starts_with(RecoveryFormat::signature))
        return fail(beginning.empty() ? "the file is empty" : "this is no recovery file");
    const std::size_t end = beginning.find('\n');
    const std::string_view rest = beginning.substr(RecoveryFormat::signature.size());
    if (end == std::string_view::npos)
        return fail("its beginning is damaged");
    const std::string_view version = rest.substr(0, end - RecoveryFormat::signature.size());
    if (version != RecoveryFormat::version) {
        if (version.empty() || version.find_first_not_of("0123456789.") != std::string_view::npos)
            return fail("its beginning is damaged");
        return fail("it was written by another version of this program: its format is " + std::string(version)
            + ", and this version reads format " + std::string(RecoveryFormat::version));
    }
    m_position = end + 1;
}

void RecoveryFileReader::readEntry()
{
    Entry entry;
    const std::size_t start = m_position;
    if (!take(entry))
        return finish();
    if (!m_hasDescription) {
        if (entry.kind == static_cast<std::uint8_t>(EntryKind::Description))
            return readDescription(entry.content);
        return fail("its beginning is damaged");
    }
    switch (static_cast<EntryKind>(entry.kind)) {
    case EntryKind::Operations:
        m_operations.push_back(entry.content);
        return;
    case EntryKind::Commit: {
        ByteReader reader(entry.content);
        RecoveryCommit commit;
        if (readTime(reader, commit.time) && reader.number(commit.steps) && reader.atEnd()) {
            m_commit = commit;
            m_hasCommit = true;
            m_committedOperations = m_operations.size();
            return;
        }
        break;
    }
    case EntryKind::Description:
        break;
    }
    m_position = start;
    finish();
}

// Returns false at the end, and at an entry that is incomplete or damaged.
bool RecoveryFileReader::take(Entry& entry) noexcept
{
    ByteReader reader(std::string_view(m_bytes).substr(m_position));
    std::uint64_t checksum = 0;
    if (!reader.wideNumber(checksum))
        return false;
    const std::string_view checked = reader.rest();
    std::uint64_t previous = 0;
    std::uint64_t size = 0;
    if (!reader.wideNumber(previous) || !reader.wideNumber(size) || !reader.byte(entry.kind) || previous != m_previous
        || size > reader.rest().size())
        return false;
    entry.content = reader.rest().substr(0, size);
    const std::size_t checkedSize = RecoveryFormat::entryHeadSize - sizeof checksum + entry.content.size();
    if (shortHashOf(std::as_bytes(std::span(checked.substr(0, checkedSize)))) != checksum)
        return false;
    m_previous = checksum;
    m_position += RecoveryFormat::entryHeadSize + entry.content.size();
    return true;
}

void RecoveryFileReader::readDescription(std::string_view content)
{
    ByteReader reader(content);
    std::uint64_t byteOrder = 0;
    if (!reader.wideNumber(byteOrder))
        return fail("its beginning is damaged");
    if (byteOrder != RecoveryFormat::byteOrder)
        return fail("it was written on another kind of machine, which orders bytes differently");
    RecoveryDescription description;
    std::uint8_t base = 0;
    std::string_view displayName;
    std::string_view fileName;
    const bool isWhole = reader.byte(base) && base <= static_cast<std::uint8_t>(RecoveryDescription::Base::Nothing)
        && readTime(reader, description.begun) && reader.text(displayName) && reader.text(fileName)
        && reader.number(description.fileSize) && reader.wideNumber(description.fileHash.high)
        && reader.wideNumber(description.fileHash.low) && reader.number(description.nodeCount) && reader.atEnd();
    if (!isWhole)
        return fail("its beginning is damaged");
    description.base = static_cast<RecoveryDescription::Base>(base);
    description.displayName = displayName;
    description.fileName = fileName;
    m_description = std::move(description);
    m_hasDescription = true;
}

void RecoveryFileReader::finish()
{
    if (!m_hasDescription)
        return fail("its beginning is damaged");
    if (!m_hasCommit)
        return fail("it ends before the first complete state of the scene");
    m_isCut = m_position < m_bytes.size() || m_operations.size() > m_committedOperations;
    m_operations.resize(m_committedOperations);
    m_state = State::Done;
}

void RecoveryFileReader::fail(std::string reason)
{
    m_operations.clear();
    m_failure = std::move(reason);
    m_state = State::Failed;
}

} // namespace meridane
