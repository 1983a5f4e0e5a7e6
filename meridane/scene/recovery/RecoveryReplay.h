#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <cstdint>
#include <memory>
#include <string>

namespace meridane {

class OperationReplay;
class RecoveryFileReader;

/// Makes the scene of the latest commit of a recovery file, in slices, all or nothing.
///
/// The operations aren't trusted: each number, index, class, field and size is checked against the scene. If anything
/// doesn't fit, the replay fails. It also fails if a node class that the changes use has other fields or other defaults
/// than when they were captured, since the result could be another scene. Thread of the user interface only.
class RecoveryReplay {
public:
    /// Whether a slice has left operations, or the scene can't be recovered.
    enum class State : std::uint8_t { Working, Done, Failed };

    /// `file` must be `Done` and outlive the replay. `base` is the scene that a reader of the file gave whose name,
    /// size and hash the description has; the replay changes it, also if it fails. Null for the base `Nothing`.
    RecoveryReplay(const RecoveryFileReader& file, NxRef<NxGroup> base);
    ~RecoveryReplay();
    RecoveryReplay(const RecoveryReplay&) = delete;
    RecoveryReplay& operator=(const RecoveryReplay&) = delete;

    /// Continues until done or until the budget is spent, which it may exceed by some milliseconds.
    State step(const WorkBudget& budget);
    /// Replays to the end.
    State run();
    /// The result of the last `step`.
    [[nodiscard]] State state() const noexcept { return m_state; }
    /// The fraction of the operations that are done, 0 to 1.
    [[nodiscard]] double progress() const noexcept;
    /// Why the scene can't be recovered, in some words that fit after the name of the recovery file and a colon. Empty
    /// unless `Failed`.
    [[nodiscard]] const std::string& failure() const noexcept { return m_failure; }
    /// The scene: a group that holds the top nodes. Null unless the state is `Done`, and after the first call.
    [[nodiscard]] NxRef<NxGroup> takeScene();

private:
    template <typename Action>
    void doWithinMemory(const Action& action);
    void fail(std::string reason);

    std::unique_ptr<OperationReplay> m_replay;
    State m_state = State::Working;
    std::string m_failure;
};

} // namespace meridane
