#include "meridane/base/errors/NxDebugError.h"

#include "meridane/base/values/VbName.h"

namespace {

constinit meridane::ErrorHandlerSlot slot;

} // namespace

NxDebugError::NxDebugError(int severity, const VbString& text)
    : NxError(text)
    , m_severity(severity)
{
}

NxType NxDebugError::getTypeId() const
{
    return getClassTypeId();
}

NxType NxDebugError::getClassTypeId()
{
    static const NxType type = NxType::registerClass("DebugError", NxError::getClassTypeId(), nullptr);
    return type;
}

NxErrorHandler NxDebugError::getHandlerCallback()
{
    return slot.callback();
}

void* NxDebugError::getHandlerData()
{
    return slot.data();
}

void NxDebugError::setHandlerCallback(NxErrorHandler callback, void* data)
{
    slot.set(callback, data);
}

void NxDebugError::post(int severity, const VbString& text)
{
    slot.deliver(NxDebugError(severity, text));
}
