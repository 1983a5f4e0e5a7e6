#include "TestNodes.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/NxFieldData.h"

NX_NODE_SOURCE(ProbeNode, NxNode, "Probe")
NX_NODE_SOURCE(ExtendedProbeNode, ProbeNode, "ExtendedProbe")
