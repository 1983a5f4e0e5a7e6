#include "meridane/base/errors/NxErrorStack.h"

#include "meridane/base/values/VbName.h"

#include <string>

namespace {

constinit meridane::ErrorHandlerSlot slot;

VbString joined(const std::vector<VbString>& messages)
{
    std::string text;
    for (const VbString& message : messages) {
        if (&message != &messages.front())
            text += ": ";
        text += message.view();
    }
    return VbString(text);
}

} // namespace

NxErrorStack::NxErrorStack(const std::vector<VbString>& messages)
    : NxError(joined(messages))
    , m_messages(messages)
{
}

NxType NxErrorStack::getTypeId() const
{
    return getClassTypeId();
}

NxType NxErrorStack::getClassTypeId()
{
    static const NxType type = NxType::registerClass("ErrorStack", NxError::getClassTypeId(), nullptr);
    return type;
}

NxErrorHandler NxErrorStack::getHandlerCallback()
{
    return slot.callback();
}

void* NxErrorStack::getHandlerData()
{
    return slot.data();
}

void NxErrorStack::setHandlerCallback(NxErrorHandler callback, void* data)
{
    slot.set(callback, data);
}

void NxErrorStack::post(const std::vector<VbString>& messages)
{
    slot.deliver(NxErrorStack(messages));
}
