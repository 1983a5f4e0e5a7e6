#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/recovery/RecoveryDescription.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace meridane {

/// Checks the bytes of a recovery file and finds its latest commit, in slices.
///
/// The bytes aren't trusted. Everything after the latest commit before the first damaged, incomplete or foreign entry
/// is left out. docs/recovery-format.md describes the format. May be used on any thread, by one at a time.
class RecoveryFileReader {
public:
    /// Whether a slice has left something to read, or nothing can be recovered.
    enum class State : std::uint8_t { Working, Done, Failed };

    /// `bytes` is the whole content of the file.
    explicit RecoveryFileReader(std::string bytes);
    RecoveryFileReader(const RecoveryFileReader&) = delete;
    RecoveryFileReader& operator=(const RecoveryFileReader&) = delete;

    /// Reads on until done or until the budget is spent, which it may exceed by the time for one entry.
    State step(const WorkBudget& budget);
    /// Reads to the end.
    State run();
    /// The result of the last `step`.
    [[nodiscard]] State state() const noexcept { return m_state; }
    /// Why nothing can be recovered from the file, in some words that fit after its name and a colon. Empty unless
    /// `Failed`.
    [[nodiscard]] const std::string& failure() const noexcept { return m_failure; }

    /// Whether the file's beginning was readable, so that there is a description, even if the state is `Failed`.
    [[nodiscard]] bool hasDescription() const noexcept { return m_hasDescription; }
    /// What the file belongs to. Only if `hasDescription`.
    [[nodiscard]] const RecoveryDescription& description() const noexcept { return m_description; }
    /// The latest commit. Only if the state is `Done`, as are the functions below.
    [[nodiscard]] const RecoveryCommit& commit() const noexcept { return m_commit; }
    /// Whether something after the latest commit is left out.
    [[nodiscard]] bool isCut() const noexcept { return m_isCut; }
    /// The operations up to the latest commit, for `RecoveryReplay`; valid as long as the reader.
    [[nodiscard]] std::span<const std::string_view> operations() const noexcept { return m_operations; }

private:
    struct Entry;

    void readFirstLine();
    void readEntry();
    [[nodiscard]] bool take(Entry& entry) noexcept;
    void readDescription(std::string_view content);
    void finish();
    void fail(std::string reason);

    std::string m_bytes;
    std::size_t m_position = 0;
    std::uint64_t m_previous = 0; // checksum
    State m_state = State::Working;
    std::string m_failure;
    bool m_hasDescription = false;
    bool m_isCut = false;
    RecoveryDescription m_description;
    RecoveryCommit m_commit;
    bool m_hasCommit = false;
    std::vector<std::string_view> m_operations;
    std::size_t m_committedOperations = 0;
};

} // namespace meridane
