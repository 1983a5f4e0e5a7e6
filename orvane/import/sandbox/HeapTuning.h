#pragma once

#include "orvane/import/sandbox/ProcessLimits.h"

namespace orvane {

/// Makes this process take its memory in large portions and keep what it has.
///
/// Reading a model takes much memory for short times. To hand it back and have it given anew, page by page, takes a
/// sixth of the time; that the first of it comes in large pages, where the system has them, saves another sixth. Where
/// the limits let it have little, it does nothing. Call it before other memory is taken.
void tuneHeap(const ProcessLimits& limits);

} // namespace orvane
