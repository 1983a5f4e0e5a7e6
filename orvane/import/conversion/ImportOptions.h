#pragma once

namespace orvane {

/// What a user may choose about a model that is read.
struct ImportOptions {
    /// Whether groups that have one child and no effect are kept.
    bool keepsGroups = false;
};

} // namespace orvane
