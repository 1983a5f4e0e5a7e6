#include "meridane/scene/recovery/detail/EntryWriter.h"

#include "meridane/scene/recovery/detail/ByteWriter.h"
#include "meridane/scene/recovery/detail/RecoveryFormat.h"

#include <cassert>
#include <cstddef>
#include <cstring>
#include <span>

namespace meridane {

namespace {

std::uint64_t millisecondsOf(std::chrono::system_clock::time_point time)
{
    using std::chrono::milliseconds;
    // Two's complement, so that times before 1970 survive as well.
    return static_cast<std::uint64_t>(std::chrono::duration_cast<milliseconds>(time.time_since_epoch()).count());
}

} // namespace

void EntryWriter::begin(std::string& bytes, const RecoveryDescription& description)
{
    bytes.append(RecoveryFormat::signature).append(RecoveryFormat::version).append("\n");
    std::string content;
    ByteWriter writer(content);
    writer.wideNumber(RecoveryFormat::byteOrder);
    writer.byte(static_cast<std::uint8_t>(description.base));
    writer.wideNumber(millisecondsOf(description.begun));
    writer.text(description.displayName);
    writer.text(description.fileName);
    writer.number(description.fileSize);
    writer.wideNumber(description.fileHash.high);
    writer.wideNumber(description.fileHash.low);
    writer.number(description.nodeCount);
    entry(bytes, RecoveryFormat::EntryKind::Description, content);
}

void EntryWriter::operations(std::string& bytes, std::string_view operations)
{
    entry(bytes, RecoveryFormat::EntryKind::Operations, operations);
}

void EntryWriter::commit(std::string& bytes, const RecoveryCommit& commit)
{
    std::string content;
    ByteWriter writer(content);
    writer.wideNumber(millisecondsOf(commit.time));
    writer.number(commit.steps);
    entry(bytes, RecoveryFormat::EntryKind::Commit, content);
}

void EntryWriter::entry(std::string& bytes, RecoveryFormat::EntryKind kind, std::string_view content)
{
    const std::size_t start = bytes.size();
    ByteWriter writer(bytes);
    writer.wideNumber(0); // the place of the checksum
    writer.wideNumber(m_previous);
    writer.wideNumber(content.size());
    writer.byte(static_cast<std::uint8_t>(kind));
    assert(bytes.size() - start == RecoveryFormat::entryHeadSize && "the head that a reader expects");
    bytes += content;
    const std::string_view checked = std::string_view(bytes).substr(start + sizeof m_previous);
    m_previous = shortHashOf(std::as_bytes(std::span(checked)));
    std::memcpy(bytes.data() + start, &m_previous, sizeof m_previous);
}

} // namespace meridane
