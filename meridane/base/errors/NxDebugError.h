#pragma once

#include "meridane/base/errors/NxError.h"

/// A message from the code to its developer or to a curious user: an error, a warning or an information.
class NxDebugError : public meridane::ErrorClass<NxDebugError, NxError> {
public:
    /// The name of the run-time type.
    static constexpr const char* typeName = "DebugError";

    /// How grave the message is.
    enum Severity : int { Error = 0, Warning = 1, Information = 2 };

    /// Any other severity counts as an error.
    NxDebugError(int severity, const VbString& text);

    /// As it was posted, be it one of `Severity` or not.
    [[nodiscard]] int getSeverity() const { return m_severity; }
    /// How grave an error of any class is: that of a debug error is its severity; all others, and debug errors of an
    /// unknown severity, are errors.
    [[nodiscard]] static Severity severityOf(const NxError& error);

    /// Builds an error and hands it to the handler of this class, at once and on this thread.
    static void post(int severity, const VbString& text);

private:
    int m_severity;
};

extern template class meridane::ErrorClass<NxDebugError, NxError>;
