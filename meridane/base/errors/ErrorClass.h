#pragma once

#include "meridane/base/errors/NxErrorHandler.h"
#include "meridane/base/types/NxType.h"

namespace meridane {

/// What every error class has of its own: its run-time type and its handler. `Error` is the class that derives from
/// this one, `Base` its parent among the run-time types.
///
/// `Error` has a constant `typeName`, the name of its run-time type, and a static operation `post` that builds an error
/// and calls `deliver`. Its source file instantiates this class with detail/ErrorClassMembers.h, so that there is one
/// handler in the process.
template <typename Error, typename Base>
class ErrorClass : public Base {
public:
    /// The run-time type of `Error`.
    [[nodiscard]] NxType getTypeId() const override;
    /// The run-time type of `Error`. It makes no instances.
    [[nodiscard]] static NxType getClassTypeId();

    /// The class's handler, null when there is none.
    [[nodiscard]] static NxErrorHandler getHandlerCallback();
    /// The user data of the handler; not owned.
    [[nodiscard]] static void* getHandlerData();
    /// Sets the class's handler; a null callback restores the line on `std::cerr`. Returns when no other thread is
    /// inside a former handler of this class any more, so that the former data may be destroyed then. So call it with
    /// no lock held that a handler may want. It may be called from a handler; calls whose handlers are themselves
    /// waiting in here are not waited for.
    static void setHandlerCallback(NxErrorHandler callback, void* data);

protected:
    using Base::Base;

    /// Hands an error to the handler of this class, at once and on this thread.
    static void deliver(const Error& error);

private:
    static ErrorHandlerSlot s_handler;
};

} // namespace meridane
