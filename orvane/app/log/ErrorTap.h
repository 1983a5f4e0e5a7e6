#pragma once

#include "meridane/base/errors/ErrorCapture.h"

#include <atomic>
#include <functional>

class NxError;

/// Listens to the errors of the toolkit, of all classes, and passes them on to the handlers that there were, on the
/// same thread.
class ErrorTap {
public:
    /// Called on the thread that reports the error.
    using Listener = std::function<void(const NxError& error)>;

    /// Becomes the handler of all classes.
    explicit ErrorTap(Listener listener);
    ErrorTap(const ErrorTap&) = delete;
    ErrorTap& operator=(const ErrorTap&) = delete;
    /// Puts the former handlers back if the tap is on top.
    ~ErrorTap();

    /// Whether errors of all classes come here and not to something that was put on top of the tap.
    [[nodiscard]] bool isOnTop() const;
    void stopListening() { m_listens = false; }
    /// For a tap that can't be taken out, since something is on top of it: it listens no more, and passes on to another
    /// tap from now on, which must live as long.
    void retire(ErrorTap& below);

private:
    static void handle(const NxError* error, void* tap);

    Listener m_listener;
    std::atomic<bool> m_listens = true;
    meridane::ErrorCapture::Callbacks m_callbacks{};
    meridane::ErrorCapture::UserData m_data{};
    meridane::ErrorCapture m_capture{m_callbacks, m_data};
};
