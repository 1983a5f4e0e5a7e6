#pragma once

#include "meridane/scene/recovery/RecoveryDescription.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace meridane {

namespace RecoveryFormat {
enum class EntryKind : std::uint8_t;
}

/// Appends the entries of one recovery file to bytes. Each has the checksum of the entry before it, so that entries of
/// other files, or an order other than theirs, are found out.
class EntryWriter {
public:
    /// The first line and the description.
    void begin(std::string& bytes, const RecoveryDescription& description);
    void operations(std::string& bytes, std::string_view operations);
    void commit(std::string& bytes, const RecoveryCommit& commit);

private:
    void entry(std::string& bytes, RecoveryFormat::EntryKind kind, std::string_view content);

    std::uint64_t m_previous = 0; // checksum
};

} // namespace meridane
