#pragma once

#include <string>

namespace orvane {

/// What became of the unit and the up axis that a model states.
struct SpaceNote {
    std::string text; ///< a sentence for the status line; empty if that is nothing to speak of
    bool isConverted = false; ///< the fields of the first node of the scene, a transform, convert them
};

} // namespace orvane
