// The field classes with a single value whose type alone decides their text.

#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/detail/SingleFieldText.h"
#include "meridane/scene/fields/single/NxSFBool.h"
#include "meridane/scene/fields/single/NxSFBox2f.h"
#include "meridane/scene/fields/single/NxSFBox3s.h"
#include "meridane/scene/fields/single/NxSFColor.h"
#include "meridane/scene/fields/single/NxSFColorRGBA.h"
#include "meridane/scene/fields/single/NxSFDouble.h"
#include "meridane/scene/fields/single/NxSFFilePathString.h"
#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/fields/single/NxSFInt32.h"
#include "meridane/scene/fields/single/NxSFMatrix.h"
#include "meridane/scene/fields/single/NxSFName.h"
#include "meridane/scene/fields/single/NxSFPlane.h"
#include "meridane/scene/fields/single/NxSFRotation.h"
#include "meridane/scene/fields/single/NxSFShort.h"
#include "meridane/scene/fields/single/NxSFString.h"
#include "meridane/scene/fields/single/NxSFTime.h"
#include "meridane/scene/fields/single/NxSFUInt32.h"
#include "meridane/scene/fields/single/NxSFUShort.h"
#include "meridane/scene/fields/single/NxSFVec2f.h"
#include "meridane/scene/fields/single/NxSFVec2i32.h"
#include "meridane/scene/fields/single/NxSFVec2s.h"
#include "meridane/scene/fields/single/NxSFVec3f.h"
#include "meridane/scene/fields/single/NxSFVec3s.h"
#include "meridane/scene/fields/single/NxSFVec4f.h"

template class meridane::SingleField<meridane::Flag>;
template class meridane::SingleField<float>;
template class meridane::SingleField<double>;
template class meridane::SingleField<int>;
template class meridane::SingleField<unsigned int>;
template class meridane::SingleField<short>;
template class meridane::SingleField<unsigned short>;
template class meridane::SingleField<VbName>;
template class meridane::SingleField<VbString>;
template class meridane::SingleField<VbColor>;
template class meridane::SingleField<VbColorRGBA>;
template class meridane::SingleField<VbVec2f>;
template class meridane::SingleField<VbVec2s>;
template class meridane::SingleField<VbVec2i32>;
template class meridane::SingleField<VbVec3f>;
template class meridane::SingleField<VbVec3s>;
template class meridane::SingleField<VbVec4f>;
template class meridane::SingleField<VbRotation>;
template class meridane::SingleField<VbPlane>;
template class meridane::SingleField<VbMatrix>;
template class meridane::SingleField<VbBox2f>;
template class meridane::SingleField<VbBox3s>;

NX_FIELD_SOURCE(NxSFBool, NxSField, "SFBool")
NX_FIELD_SOURCE(NxSFBox2f, NxSField, "SFBox2f")
NX_FIELD_SOURCE(NxSFBox3s, NxSField, "SFBox3s")
NX_FIELD_SOURCE(NxSFColor, NxSField, "SFColor")
NX_FIELD_SOURCE(NxSFColorRGBA, NxSField, "SFColorRGBA")
NX_FIELD_SOURCE(NxSFDouble, NxSField, "SFDouble")
NX_FIELD_SOURCE(NxSFFilePathString, NxSFString, "SFFilePathString")
NX_FIELD_SOURCE(NxSFFloat, NxSField, "SFFloat")
NX_FIELD_SOURCE(NxSFInt32, NxSField, "SFInt32")
NX_FIELD_SOURCE(NxSFMatrix, NxSField, "SFMatrix")
NX_FIELD_SOURCE(NxSFName, NxSField, "SFName")
NX_FIELD_SOURCE(NxSFPlane, NxSField, "SFPlane")
NX_FIELD_SOURCE(NxSFRotation, NxSField, "SFRotation")
NX_FIELD_SOURCE(NxSFShort, NxSField, "SFShort")
NX_FIELD_SOURCE(NxSFString, NxSField, "SFString")
NX_FIELD_SOURCE(NxSFTime, NxSField, "SFTime")
NX_FIELD_SOURCE(NxSFUInt32, NxSField, "SFUInt32")
NX_FIELD_SOURCE(NxSFUShort, NxSField, "SFUShort")
NX_FIELD_SOURCE(NxSFVec2f, NxSField, "SFVec2f")
NX_FIELD_SOURCE(NxSFVec2i32, NxSField, "SFVec2i32")
NX_FIELD_SOURCE(NxSFVec2s, NxSField, "SFVec2s")
NX_FIELD_SOURCE(NxSFVec3f, NxSField, "SFVec3f")
NX_FIELD_SOURCE(NxSFVec3s, NxSField, "SFVec3s")
NX_FIELD_SOURCE(NxSFVec4f, NxSField, "SFVec4f")
