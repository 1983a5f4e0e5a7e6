#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/recovery/RecoveryDescription.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>

namespace meridane {

class ChangeCapture;
class EntryWriter;
class Journal;

/// Turns what happens in the scene of a journal into the bytes of a recovery file, in slices.
///
/// It notes which places of the scene have changed, whoever changes them, undo and redo included. `run` appends their
/// present contents to the file. When nothing is left, it appends a commit: the file up to there gives the scene as it
/// is at that moment, to the bit. Without a file to begin from, all nodes count as changed at first, so that the whole
/// scene is captured, while the user continues to edit. Several captures of one journal may exist, such as while a file
/// that became long is replaced by a new one.
///
/// It never changes the scene and notifies nobody. The caller writes the bytes to a file, in their order, and calls
/// `run` when the scene has changed. Thread of the user interface only.
class RecoveryCapture {
public:
    /// Returns the present time. Tests pass a clock of their own.
    using Clock = std::chrono::system_clock::time_point (*)();

    /// With `Base::File` the scene must be as a reader of that file gives it, which isn't so if the writer of the file
    /// mapped its file paths (`NxSceneWriter::setPathMap`). The journal must record, and outlive the capture. `clock`
    /// gives the times in the file. May throw `std::bad_alloc`.
    RecoveryCapture(Journal& journal, RecoveryDescription description, Clock clock = &std::chrono::system_clock::now);
    ~RecoveryCapture();
    RecoveryCapture(const RecoveryCapture&) = delete;
    RecoveryCapture& operator=(const RecoveryCapture&) = delete;

    /// Captures changes for about as long as `budget` and appends bytes of the recovery file to `bytes`. Returns true
    /// if there is more to capture at once; a commit ends the last bytes before false. If the same places change so
    /// often that there is no end, one call finally takes as long as it needs.
    bool run(std::string& bytes, const WorkBudget& budget);
    /// Whether something has changed since the latest commit, or there is none yet where one is due, so that `run` has
    /// work to do.
    [[nodiscard]] bool hasWork() const noexcept;
    /// Whether memory ran out while a change was noted or captured. Then the file stays at its latest commit: `run`
    /// appends nothing any more, and a new capture that begins from nothing is needed.
    [[nodiscard]] bool hasFailed() const noexcept;

    /// The number of steps in the commits from now on, 0 at first.
    void setSteps(std::uint64_t steps) noexcept { m_steps = steps; }

    /// What the file begins with, once `run` has appended bytes. The base becomes `Nothing` if nodes are added or
    /// removed before `run` has read the order of the nodes, which takes the first slices.
    [[nodiscard]] const RecoveryDescription& description() const noexcept { return m_description; }
    /// How many bytes have been appended.
    [[nodiscard]] std::uint64_t byteCount() const noexcept { return m_byteCount; }
    /// How many commits have been appended.
    [[nodiscard]] std::uint64_t commitCount() const noexcept { return m_commitCount; }

private:
    void writeDescription(std::string& bytes);
    void writeCommit(std::string& bytes);
    bool capture(std::string& bytes, const WorkBudget& budget);

    RecoveryDescription m_description;
    Clock m_clock;
    std::unique_ptr<ChangeCapture> m_changes;
    std::unique_ptr<EntryWriter> m_entries;
    std::string m_operations; // of one slice
    std::uint64_t m_steps = 0;
    std::uint64_t m_byteCount = 0;
    std::uint64_t m_commitCount = 0;
    bool m_needsCommit = false;
};

} // namespace meridane
