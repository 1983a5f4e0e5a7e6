#include "meridane/base/errors/NxGLError.h"

#include "meridane/base/errors/detail/ErrorClassMembers.h"

#include <array>
#include <cstdio>
#include <string>

namespace {

// These codes never change; this library doesn't include OpenGL's header.
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

template class meridane::ErrorClass<NxGLError, NxError>;

NxGLError::NxGLError(unsigned int code, const VbString& operation)
    : ErrorClass(describe(code, operation))
    , m_code(code)
{
}

void NxGLError::post(unsigned int code, const VbString& operation)
{
    deliver(NxGLError(code, operation));
}
