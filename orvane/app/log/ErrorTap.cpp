#include "orvane/app/log/ErrorTap.h"

#include "orvane/app/log/Passing.h"

#include "meridane/base/errors/NxDebugError.h"
#include "meridane/base/errors/NxErrorStack.h"
#include "meridane/base/errors/NxGLError.h"
#include "meridane/base/errors/NxMemoryError.h"
#include "meridane/base/errors/NxReadError.h"

#include <array>
#include <cstddef>
#include <utility>

using orvane::Passing;
using orvane::Tapped;

namespace {

/// The place of an error's class in the order of the captures.
std::size_t indexOf(const NxError& error)
{
    const std::array types{NxDebugError::getClassTypeId(), NxError::getClassTypeId(), NxErrorStack::getClassTypeId(),
        NxGLError::getClassTypeId(), NxMemoryError::getClassTypeId(), NxReadError::getClassTypeId()};
    constexpr std::size_t plainError = 1;
    for (std::size_t index = 0; index < types.size(); ++index) {
        if (types[index] == error.getTypeId())
            return index;
    }
    return plainError;
}

} // namespace

ErrorTap::ErrorTap(Listener listener)
    : m_listener(std::move(listener))
{
    m_capture.begin(&handle, this);
}

ErrorTap::~ErrorTap()
{
    if (isOnTop())
        m_capture.end();
}

bool ErrorTap::isOnTop() const
{
    const auto isOurs
        = [this](NxErrorHandler callback, const void* data) { return callback == &handle && data == this; };
    return isOurs(NxDebugError::getHandlerCallback(), NxDebugError::getHandlerData())
        && isOurs(NxError::getHandlerCallback(), NxError::getHandlerData())
        && isOurs(NxErrorStack::getHandlerCallback(), NxErrorStack::getHandlerData())
        && isOurs(NxGLError::getHandlerCallback(), NxGLError::getHandlerData())
        && isOurs(NxMemoryError::getHandlerCallback(), NxMemoryError::getHandlerData())
        && isOurs(NxReadError::getHandlerCallback(), NxReadError::getHandlerData());
}

void ErrorTap::retire(ErrorTap& below)
{
    stopListening();
    m_callbacks.fill(&handle);
    m_data.fill(&below);
}

void ErrorTap::handle(const NxError* error, void* data)
{
    const ErrorTap& tap = *static_cast<const ErrorTap*>(data);
    if (tap.m_listens && !Passing::isOn(Tapped::Error))
        tap.m_listener(*error);
    const Passing passing(Tapped::Error);
    const std::size_t index = indexOf(*error);
    if (tap.m_callbacks[index] != nullptr)
        tap.m_callbacks[index](error, tap.m_data[index]);
    else
        meridane::ErrorHandlerSlot().deliver(*error);
}
