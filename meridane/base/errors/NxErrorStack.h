#pragma once

#include "meridane/base/errors/NxError.h"

#include <vector>

/// A failure and what led to it: the outermost message first, behind it the cause of each, as far as it is known.
class NxErrorStack : public NxError {
public:
    /// The text is that of all messages, joined by ": ".
    explicit NxErrorStack(const std::vector<VbString>& messages);

    [[nodiscard]] NxType getTypeId() const override;
    [[nodiscard]] static NxType getClassTypeId();

    [[nodiscard]] const std::vector<VbString>& getMessages() const { return m_messages; }

    // The handler of this class, as in NxError.
    [[nodiscard]] static NxErrorHandler getHandlerCallback();
    [[nodiscard]] static void* getHandlerData();
    static void setHandlerCallback(NxErrorHandler callback, void* data);

    static void post(const std::vector<VbString>& messages);

private:
    std::vector<VbString> m_messages;
};
