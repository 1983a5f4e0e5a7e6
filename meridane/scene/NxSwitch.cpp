#include "meridane/scene/NxSwitch.h"

NX_NODE_SOURCE(NxSwitch, NxGroup, "Switch")
