#include "meridane/base/errors/NxError.h"

#include "meridane/base/errors/detail/ErrorClassMembers.h"

template class meridane::ErrorClass<NxError, NxTypedObject>;

NxError::NxError(const VbString& text)
    : m_text(text)
{
}

void NxError::post(const VbString& text)
{
    deliver(NxError(text));
}
