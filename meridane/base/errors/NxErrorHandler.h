#pragma once

#include <cstdint>

/// \file
/// The handlers of the error classes.

class NxError;

/// Takes a posted error. It runs on the thread that posts, which may be any; the error lives until it returns. It must
/// not throw. It may post errors and set handlers itself.
using NxErrorHandler = void (*)(const NxError* error, void* data);

namespace meridane {

/// The handler of one error class. For objects of static storage, which may be used from the first static initialiser
/// to the last destructor, on any thread.
class ErrorHandlerSlot {
public:
    constexpr ErrorHandlerSlot() = default;
    ErrorHandlerSlot(const ErrorHandlerSlot&) = delete;
    ErrorHandlerSlot& operator=(const ErrorHandlerSlot&) = delete;

    /// The handler; null for none.
    [[nodiscard]] NxErrorHandler callback() const;
    /// The data that is passed to the handler; not owned.
    [[nodiscard]] void* data() const;
    /// See `NxError::setHandlerCallback`.
    void set(NxErrorHandler handler, void* data);
    /// Calls the handler, or writes the error to `std::cerr` if there is none.
    void deliver(const NxError& error) const;

private:
    NxErrorHandler m_callback = nullptr;
    void* m_data = nullptr;
    /// How often the handler was set; distinguishes calls to the present handler from calls to earlier ones.
    std::uint64_t m_generation = 0;
};

} // namespace meridane
