#include "meridane/base/errors/NxReadError.h"

#include "meridane/base/values/VbName.h"

#include <string>

namespace {

constinit meridane::ErrorHandlerSlot slot;

VbString describe(const VbString& file, int line, int column, const VbString& message)
{
    std::string position(file.view());
    // A column means nothing without its line.
    for (const int number : {line, line == 0 ? 0 : column}) {
        if (number == 0)
            continue;
        if (!position.empty())
            position += ':';
        position += std::to_string(number);
    }
    if (!position.empty())
        position += ": ";
    return VbString(position + std::string(message.view()));
}

} // namespace

NxReadError::NxReadError(const VbString& file, int line, int column, const VbString& message)
    : NxError(describe(file, line, column, message))
    , m_file(file)
    , m_line(line)
    , m_column(column)
    , m_message(message)
{
}

NxType NxReadError::getTypeId() const
{
    return getClassTypeId();
}

NxType NxReadError::getClassTypeId()
{
    static const NxType type = NxType::registerClass("ReadError", NxError::getClassTypeId(), nullptr);
    return type;
}

NxErrorHandler NxReadError::getHandlerCallback()
{
    return slot.callback();
}

void* NxReadError::getHandlerData()
{
    return slot.data();
}

void NxReadError::setHandlerCallback(NxErrorHandler callback, void* data)
{
    slot.set(callback, data);
}

void NxReadError::post(const VbString& file, int line, int column, const VbString& message)
{
    slot.deliver(NxReadError(file, line, column, message));
}
