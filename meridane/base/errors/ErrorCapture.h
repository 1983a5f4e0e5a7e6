#pragma once

#include "meridane/base/errors/NxErrorHandler.h"

#include <array>
#include <cstddef>

namespace meridane {

/// Takes over the handlers of all six error classes for a while and puts the former ones back afterwards.
///
/// The order of the classes is `NxDebugError`, `NxError`, `NxErrorStack`, `NxGLError`, `NxMemoryError`, `NxReadError`.
/// For captures within captures: the one that began last must end first.
class ErrorCapture final {
public:
    /// The number of error classes.
    static constexpr std::size_t classCount = 6;
    /// A handler for each class.
    using Callbacks = std::array<NxErrorHandler, classCount>;
    /// The data of a handler for each class.
    using UserData = std::array<void*, classCount>;

    /// Changes no handler yet. The arrays are the caller's and must live as long as this object; from `begin` on they
    /// hold the former handlers and their data.
    ErrorCapture(Callbacks& formerCallbacks, UserData& formerData) noexcept;

    /// Saves the present handlers and sets `handler` for every class. The former handlers aren't called meanwhile.
    void begin(NxErrorHandler handler, void* data);
    /// Puts the former handlers back. When it returns, no other thread is inside the handler any more.
    void end();

private:
    Callbacks& m_formerCallbacks;
    UserData& m_formerData;
};

} // namespace meridane
