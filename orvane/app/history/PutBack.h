#pragma once

#include "orvane/app/base/Result.h"
#include "orvane/app/history/PastState.h"

#include <QString>

class OrvServices;

/// Giving a field the value back that it had before a step of the history, without undoing what came after.
namespace orvane {

/// Why a step has no such value, for its user; empty if it has one: it changed the value of one field, or the name of
/// one node.
[[nodiscard]] QString whyNotPutBack(const OrvStepList& steps, int step);

/// Writes the older value as a new step. Fails if the node isn't in the scene any more, if the field has that value
/// already, or if `whyNotPutBack` has a reason.
[[nodiscard]] Result<> putBack(OrvServices& services, const PastState::History& history, int step);

} // namespace orvane
