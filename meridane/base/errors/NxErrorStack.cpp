#include "meridane/base/errors/NxErrorStack.h"

#include "meridane/base/errors/detail/ErrorClassMembers.h"

#include <string>

namespace {

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

template class meridane::ErrorClass<NxErrorStack, NxError>;

NxErrorStack::NxErrorStack(const std::vector<VbString>& messages)
    : ErrorClass(joined(messages))
    , m_messages(messages)
{
}

void NxErrorStack::post(const std::vector<VbString>& messages)
{
    deliver(NxErrorStack(messages));
}
