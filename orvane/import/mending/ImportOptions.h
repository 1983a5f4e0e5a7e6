#pragma once

namespace orvane {

/// What a user may choose about a model that is read.
struct ImportOptions {
    /// What becomes of the unit and the up axis that a file states.
    enum class Space {
        Convert, ///< the scene is in metres and y points up
        Axes, ///< y points up, the numbers keep their unit
        Keep, ///< the scene is as the file
    };

    /// Whether groups that have one child and no effect are kept.
    bool keepsGroups = false;
    Space space = Space::Convert;
};

} // namespace orvane
