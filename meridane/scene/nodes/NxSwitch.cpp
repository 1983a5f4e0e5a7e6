#include "meridane/scene/nodes/NxSwitch.h"

NX_NODE_SOURCE(NxSwitch, NxGroup, "Switch")
