#pragma once

#include "orvane/import/sandbox/ProcessLimits.h"

namespace orvane {

/// Tunes the heap of this process to request memory in large blocks and not to return it to the system.
///
/// Reading a model needs much memory for short times. Returning it and requesting it again, page by page, takes a sixth
/// of the time. Large pages for the first part, if the system has them, save another sixth. Does nothing if the limits
/// allow less than 1 GiB. To be called before other memory is allocated.
void tuneHeap(const ProcessLimits& limits);

} // namespace orvane
