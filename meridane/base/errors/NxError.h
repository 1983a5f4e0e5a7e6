#pragma once

#include "meridane/base/errors/NxErrorHandler.h"
#include "meridane/base/types/NxTypedObject.h"
#include "meridane/base/values/VbString.h"

/// Something that the user must hear of, posted by the toolkit to whoever shows it.
///
/// There are six error classes, and each has a handler of its own; an error goes to the handler of exactly the class
/// whose `post` was called. A class without a handler writes one line to `std::cerr`: "error: ", "warning: " or
/// "information: ", and the text. Errors may be posted, and handlers set, on any thread.
class NxError : public NxTypedObject {
public:
    explicit NxError(const VbString& text);

    [[nodiscard]] NxType getTypeId() const override;
    [[nodiscard]] static NxType getClassTypeId();

    /// What happened, for people.
    [[nodiscard]] const VbString& getDebugString() const { return m_text; }

    /// The class's handler, null when there is none.
    [[nodiscard]] static NxErrorHandler getHandlerCallback();
    /// What the handler is given; not owned.
    [[nodiscard]] static void* getHandlerData();
    /// Sets the class's handler; a null callback restores the line on `std::cerr`. Returns when no other thread is
    /// inside a former handler of this class any more, so that the former data may be destroyed then. So call it with
    /// no lock held that a handler may want. It may be called from a handler; calls whose handlers are themselves
    /// waiting in here are not waited for.
    static void setHandlerCallback(NxErrorHandler callback, void* data);

    /// Builds an error and hands it to the class's handler, at once and on this thread.
    static void post(const VbString& text);

private:
    VbString m_text;
};
