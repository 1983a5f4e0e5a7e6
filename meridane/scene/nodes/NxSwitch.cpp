#include "meridane/scene/nodes/NxSwitch.h"

NX_NODE_SOURCE(NxSwitch, NxGroup, "Switch", "A group that shows one of its children, none or all.")
