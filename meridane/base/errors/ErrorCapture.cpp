#include "meridane/base/errors/ErrorCapture.h"

#include "meridane/base/errors/NxDebugError.h"
#include "meridane/base/errors/NxErrorStack.h"
#include "meridane/base/errors/NxGLError.h"
#include "meridane/base/errors/NxMemoryError.h"
#include "meridane/base/errors/NxReadError.h"

namespace meridane {

namespace {

/// The static operations of one error class.
struct HandlerAccess {
    NxErrorHandler (*getCallback)();
    void* (*getData)();
    void (*set)(NxErrorHandler callback, void* data);
};

template <typename Error>
constexpr HandlerAccess accessTo{&Error::getHandlerCallback, &Error::getHandlerData, &Error::setHandlerCallback};

constexpr std::array<HandlerAccess, ErrorCapture::classCount> errorClasses{accessTo<NxDebugError>, accessTo<NxError>,
    accessTo<NxErrorStack>, accessTo<NxGLError>, accessTo<NxMemoryError>, accessTo<NxReadError>};

} // namespace

ErrorCapture::ErrorCapture(Callbacks& formerCallbacks, UserData& formerData) noexcept
    : m_formerCallbacks(formerCallbacks)
    , m_formerData(formerData)
{
}

void ErrorCapture::begin(NxErrorHandler handler, void* data)
{
    for (std::size_t index = 0; index < classCount; ++index) {
        m_formerCallbacks[index] = errorClasses[index].getCallback();
        m_formerData[index] = errorClasses[index].getData();
    }
    for (const HandlerAccess& errorClass : errorClasses)
        errorClass.set(handler, data);
}

void ErrorCapture::end()
{
    for (std::size_t index = 0; index < classCount; ++index)
        errorClasses[index].set(m_formerCallbacks[index], m_formerData[index]);
}

} // namespace meridane
