#include "meridane/base/errors/NxError.h"

#include "meridane/base/values/VbName.h"

namespace {

constinit meridane::ErrorHandlerSlot slot;

} // namespace

NxError::NxError(const VbString& text)
    : m_text(text)
{
}

NxType NxError::getTypeId() const
{
    return getClassTypeId();
}

NxType NxError::getClassTypeId()
{
    static const NxType type = NxType::registerClass("Error", NxTypedObject::getClassTypeId(), nullptr);
    return type;
}

NxErrorHandler NxError::getHandlerCallback()
{
    return slot.callback();
}

void* NxError::getHandlerData()
{
    return slot.data();
}

void NxError::setHandlerCallback(NxErrorHandler callback, void* data)
{
    slot.set(callback, data);
}

void NxError::post(const VbString& text)
{
    slot.deliver(NxError(text));
}
