#pragma once

#include "meridane/base/errors/NxError.h"

#include <vector>

/// A failure and what led to it: the outermost message first, behind it the cause of each, as far as it is known.
class NxErrorStack : public meridane::ErrorClass<NxErrorStack, NxError> {
public:
    /// The name of the run-time type.
    static constexpr const char* typeName = "ErrorStack";

    /// The text is that of all messages, joined by ": ".
    explicit NxErrorStack(const std::vector<VbString>& messages);

    /// The messages, the outermost first.
    [[nodiscard]] const std::vector<VbString>& getMessages() const { return m_messages; }

    /// Builds an error and hands it to the handler of this class, at once and on this thread.
    static void post(const std::vector<VbString>& messages);

private:
    std::vector<VbString> m_messages;
};

extern template class meridane::ErrorClass<NxErrorStack, NxError>;
