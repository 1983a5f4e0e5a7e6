#include "sdk/Angle.h"

NX_FIELD_SOURCE(SFAngle, NxSField, "SFAngle")
NX_FIELD_SOURCE(MFPlace, NxMField, "MFPlace")
NX_NODE_SOURCE(Signpost, NxTransform, "Signpost", "It says where places are.")
