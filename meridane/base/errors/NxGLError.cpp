#include "meridane/base/errors/NxGLError.h"

#include "meridane/base/values/VbName.h"

#include <array>
#include <cstdio>
#include <string>

namespace {

constinit meridane::ErrorHandlerSlot slot;

// The codes are fixed by the drawing library's binary interface; its header is none of this library's business.
const char* nameOf(unsigned int code)
{
    switch (code) {
    case 0x0500:
        return "invalid enum";
    case 0x0501:
        return "invalid value";
    case 0x0502:
        return "invalid operation";
    case 0x0503:
        return "stack overflow";
    case 0x0504:
        return "stack underflow";
    case 0x0505:
        return "out of memory";
    case 0x0506:
        return "invalid framebuffer operation";
    case 0x0507:
        return "context lost";
    default:
        return "unknown error";
    }
}

VbString describe(unsigned int code, const VbString& operation)
{
    std::array<char, 16> number{};
    std::snprintf(number.data(), number.size(), "0x%04x", code);
    return VbString(std::string(operation.view()) + ": OpenGL error " + number.data() + ", " + nameOf(code));
}

} // namespace

NxGLError::NxGLError(unsigned int code, const VbString& operation)
    : NxError(describe(code, operation))
    , m_code(code)
{
}

NxType NxGLError::getTypeId() const
{
    return getClassTypeId();
}

NxType NxGLError::getClassTypeId()
{
    static const NxType type = NxType::registerClass("GLError", NxError::getClassTypeId(), nullptr);
    return type;
}

NxErrorHandler NxGLError::getHandlerCallback()
{
    return slot.callback();
}

void* NxGLError::getHandlerData()
{
    return slot.data();
}

void NxGLError::setHandlerCallback(NxErrorHandler callback, void* data)
{
    slot.set(callback, data);
}

void NxGLError::post(unsigned int code, const VbString& operation)
{
    slot.deliver(NxGLError(code, operation));
}
