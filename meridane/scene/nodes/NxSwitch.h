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

    /// The index of the shown child, from 0; -1 for none and -3 for all. Any other number, or an index beyond the last
    /// child, shows none.
    NxSFInt32 whichChild{this, "whichChild", NONE};

protected:
    ~NxSwitch() override = default;
};
