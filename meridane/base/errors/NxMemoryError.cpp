#include "meridane/base/errors/NxMemoryError.h"

#include "meridane/base/values/VbName.h"

#include <string>

namespace {

constinit meridane::ErrorHandlerSlot slot;

VbString describe(const char* file, int line, std::size_t size)
{
    std::string text;
    if (file != nullptr)
        text += std::string(file) + ":" + std::to_string(line) + ": ";
    return VbString(text + "no memory for " + std::to_string(size) + " bytes");
}

} // namespace

NxMemoryError::NxMemoryError(const char* file, int line, std::size_t size)
    : NxError(describe(file, line, size))
    , m_size(size)
{
}

NxType NxMemoryError::getTypeId() const
{
    return getClassTypeId();
}

NxType NxMemoryError::getClassTypeId()
{
    static const NxType type = NxType::registerClass("MemoryError", NxError::getClassTypeId(), nullptr);
    return type;
}

NxErrorHandler NxMemoryError::getHandlerCallback()
{
    return slot.callback();
}

void* NxMemoryError::getHandlerData()
{
    return slot.data();
}

void NxMemoryError::setHandlerCallback(NxErrorHandler callback, void* data)
{
    slot.set(callback, data);
}

void NxMemoryError::post(const char* file, int line, std::size_t size)
{
    slot.deliver(NxMemoryError(file, line, size));
}
