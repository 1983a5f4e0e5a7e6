#pragma once

#include "meridane/base/ContentHash.h"
#include "meridane/base/Files.h"
#include "meridane/base/WorkBudget.h"

#include <optional>
#include <string>

namespace meridane {

/// Finds the hash of a file's content in slices.
class FileHasher {
public:
    /// Whether a slice has left something to read, or the file can't be read.
    enum class State { Working, Done, Failed };

    /// Opens nothing yet: the first `step` does.
    explicit FileHasher(std::string path);

    /// Reads on until done or until the budget is spent.
    State step(const WorkBudget& budget);
    /// The result of the last `step`.
    [[nodiscard]] State state() const noexcept { return m_state; }
    /// The hash, once `Done`.
    [[nodiscard]] ContentHash hash() const noexcept { return m_hasher.hash(); }
    /// Why the file can't be read, with its name; empty unless `Failed`.
    [[nodiscard]] const std::string& failure() const noexcept { return m_failure; }

private:
    void finish(const std::optional<std::string>& failure);

    std::string m_path;
    FileReader m_file;
    std::string m_bytes; // of one slice
    ContentHasher m_hasher;
    std::string m_failure;
    State m_state = State::Working;
    bool m_opened = false;
};

} // namespace meridane
