#pragma once

#include "meridane/scene/fields/ChangeRecord.h"

#include <memory>
#include <span>
#include <vector>

/// The records of one step, in the order of its writes. The scene is in the state directly after the step.
namespace meridane::StepRecords {

using Records = std::vector<std::unique_ptr<ChangeRecord>>;

/// Exchanges all records from the last to the first, which gives the state before the step.
void undo(std::span<const std::unique_ptr<ChangeRecord>> records);
/// Exchanges them from the first to the last, which gives the state after the step again.
void redo(std::span<const std::unique_ptr<ChangeRecord>> records);
/// `undo` and `redo` that the attached recorder is informed of. The others are only for a short look at a state.
void moveBack(std::span<const std::unique_ptr<ChangeRecord>> records);
void moveForward(std::span<const std::unique_ptr<ChangeRecord>> records);
/// Notifies the observers of each changed field, name and group once.
void notify(std::span<const std::unique_ptr<ChangeRecord>> records);

/// Whether the step changed anything: whether any bit differs from the state before it.
[[nodiscard]] bool haveChanges(std::span<const std::unique_ptr<ChangeRecord>> records);
/// Removes the records of places that are as they were before the step.
void removeUnchanged(Records& records);

} // namespace meridane::StepRecords
