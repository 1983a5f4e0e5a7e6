#pragma once

#include "meridane/scene/fields/single/NxSFInt32.h"
#include "meridane/scene/nodes/NxGroup.h"

/// A group that shows one of its children, none or all.
class NxSwitch : public NxGroup {
    NX_NODE(NxSwitch)

public:
    /// Values of `whichChild` that are no index.
    enum Which {
        NONE = -1, ///< no child is shown
        ALL = -3, ///< all children are shown
    };

    NxSFInt32 whichChild{this,
        {"whichChild",
            "The index of the shown child, counted from 0; -1 or an index without a child shows none, -3 shows all.",
            meridane::atLeast(-3)},
        NONE};

protected:
    ~NxSwitch() override = default;
};
