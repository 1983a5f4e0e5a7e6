#include "meridane/base/errors/NxDebugError.h"

#include "meridane/base/errors/detail/ErrorClassMembers.h"

template class meridane::ErrorClass<NxDebugError, NxError>;

NxDebugError::NxDebugError(int severity, const VbString& text)
    : ErrorClass(text)
    , m_severity(severity)
{
}

NxDebugError::Severity NxDebugError::severityOf(const NxError& error)
{
    if (!error.isOfType(getClassTypeId()))
        return Error;
    switch (const int severity = static_cast<const NxDebugError&>(error).getSeverity()) {
    case Warning:
    case Information:
        return static_cast<Severity>(severity);
    default:
        return Error;
    }
}

void NxDebugError::post(int severity, const VbString& text)
{
    deliver(NxDebugError(severity, text));
}
