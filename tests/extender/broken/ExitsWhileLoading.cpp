#include "extender/broken/Broken.h"

#include <cstdlib>

namespace {

// Runs when the library is mapped.
[[maybe_unused]] const int licence = [] {
    std::exit(0);
    return 0;
}();

} // namespace

BROKEN_EXTENSION(Quiet<OrvExtension>)
