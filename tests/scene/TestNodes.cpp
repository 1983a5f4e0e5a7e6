#include "TestNodes.h"

#include "meridane/base/VbName.h"
#include "meridane/scene/NxFieldData.h"

NX_NODE_SOURCE(ProbeNode, NxNode, "Probe")
NX_NODE_SOURCE(ExtendedProbeNode, ProbeNode, "ExtendedProbe")
