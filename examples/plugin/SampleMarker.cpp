#include "SampleMarker.h"

NX_NODE_SOURCE(SampleMarker, NxTransform, "SampleMarker", "A place that somebody wants to find again.")
