#pragma once

#include "plugins/nodes/GroupForm.h"

#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/nodes/NxSwitch.h"

namespace nodes {

/// What is in a group. It shows groups of every class that has no editor of its own.
class GroupEditor final : public GroupForm<NxGroup> {
    void build() override;
};

/// Which child a switch shows, and what is in it.
class SwitchEditor final : public GroupForm<NxSwitch> {
    void build() override;
};

} // namespace nodes
