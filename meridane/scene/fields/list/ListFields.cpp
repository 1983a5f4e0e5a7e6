// The field classes with a list of values whose type alone decides their text.

#include "meridane/base/values/VbColor.h"
#include "meridane/base/values/VbName.h"
#include "meridane/scene/fields/detail/ListFieldText.h"
#include "meridane/scene/fields/list/NxMFBool.h"
#include "meridane/scene/fields/list/NxMFColor.h"
#include "meridane/scene/fields/list/NxMFColorRGBA.h"
#include "meridane/scene/fields/list/NxMFDouble.h"
#include "meridane/scene/fields/list/NxMFFloat.h"
#include "meridane/scene/fields/list/NxMFInt32.h"
#include "meridane/scene/fields/list/NxMFMatrix.h"
#include "meridane/scene/fields/list/NxMFName.h"
#include "meridane/scene/fields/list/NxMFPlane.h"
#include "meridane/scene/fields/list/NxMFRotation.h"
#include "meridane/scene/fields/list/NxMFShort.h"
#include "meridane/scene/fields/list/NxMFString.h"
#include "meridane/scene/fields/list/NxMFUInt32.h"
#include "meridane/scene/fields/list/NxMFUShort.h"
#include "meridane/scene/fields/list/NxMFVec2f.h"
#include "meridane/scene/fields/list/NxMFVec2i32.h"
#include "meridane/scene/fields/list/NxMFVec2s.h"
#include "meridane/scene/fields/list/NxMFVec3f.h"
#include "meridane/scene/fields/list/NxMFVec4f.h"

template class meridane::ListField<float>;
template class meridane::ListField<double>;
template class meridane::ListField<int>;
template class meridane::ListField<unsigned int>;
template class meridane::ListField<short>;
template class meridane::ListField<unsigned short>;
template class meridane::ListField<meridane::Flag>;
template class meridane::ListField<VbName>;
template class meridane::ListField<VbString>;
template class meridane::ListField<VbVec2f>;
template class meridane::ListField<VbVec2s>;
template class meridane::ListField<VbVec2i32>;
template class meridane::ListField<VbVec3f>;
template class meridane::ListField<VbVec4f>;
template class meridane::ListField<VbRotation>;
template class meridane::ListField<VbPlane>;
template class meridane::ListField<VbMatrix>;

NX_FIELD_SOURCE(NxMFBool, NxMField, "MFBool")
NX_FIELD_SOURCE(NxMFColor, NxMFVec3f, "MFColor")
NX_FIELD_SOURCE(NxMFColorRGBA, NxMFVec4f, "MFColorRGBA")
NX_FIELD_SOURCE(NxMFDouble, NxMField, "MFDouble")
NX_FIELD_SOURCE(NxMFFloat, NxMField, "MFFloat")
NX_FIELD_SOURCE(NxMFInt32, NxMField, "MFInt32")
NX_FIELD_SOURCE(NxMFMatrix, NxMField, "MFMatrix")
NX_FIELD_SOURCE(NxMFName, NxMField, "MFName")
NX_FIELD_SOURCE(NxMFPlane, NxMField, "MFPlane")
NX_FIELD_SOURCE(NxMFRotation, NxMField, "MFRotation")
NX_FIELD_SOURCE(NxMFShort, NxMField, "MFShort")
NX_FIELD_SOURCE(NxMFString, NxMField, "MFString")
NX_FIELD_SOURCE(NxMFUInt32, NxMField, "MFUInt32")
NX_FIELD_SOURCE(NxMFUShort, NxMField, "MFUShort")
NX_FIELD_SOURCE(NxMFVec2f, NxMField, "MFVec2f")
NX_FIELD_SOURCE(NxMFVec2i32, NxMField, "MFVec2i32")
NX_FIELD_SOURCE(NxMFVec2s, NxMField, "MFVec2s")
NX_FIELD_SOURCE(NxMFVec3f, NxMField, "MFVec3f")
NX_FIELD_SOURCE(NxMFVec4f, NxMField, "MFVec4f")

void NxMFColorRGBA::insertSpace(int start, int count)
{
    insertCopies(start, count, VbColorRGBA());
}
