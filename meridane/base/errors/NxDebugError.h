#pragma once

#include "meridane/base/errors/NxError.h"

/// A message from the code to its developer or to a curious user: an error, a warning or an information.
class NxDebugError : public NxError {
public:
    enum Severity : int { Error = 0, Warning = 1, Information = 2 };

    /// Any other severity counts as an error.
    NxDebugError(int severity, const VbString& text);

    [[nodiscard]] NxType getTypeId() const override;
    [[nodiscard]] static NxType getClassTypeId();

    [[nodiscard]] int getSeverity() const { return m_severity; }

    // The handler of this class, as in NxError.
    [[nodiscard]] static NxErrorHandler getHandlerCallback();
    [[nodiscard]] static void* getHandlerData();
    static void setHandlerCallback(NxErrorHandler callback, void* data);

    static void post(int severity, const VbString& text);

private:
    int m_severity;
};
