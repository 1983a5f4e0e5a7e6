#pragma once

#include "meridane/base/values/VbString.h"

/// An OpenGL 3.3 core context without a window or window system, for drawing into framebuffer objects. It must be used
/// on the thread that made it.
class NxOffscreenContext {
public:
    /// Creates the context, without making it current; `isValid` reports success.
    NxOffscreenContext();
    /// Destroys the context and all objects in it. It is no longer current.
    ~NxOffscreenContext();
    NxOffscreenContext(const NxOffscreenContext&) = delete;
    NxOffscreenContext& operator=(const NxOffscreenContext&) = delete;

    /// Whether there is a context.
    [[nodiscard]] bool isValid() const noexcept { return m_context != nullptr; }
    /// Why there is no context, such as "the driver has no OpenGL 3.3"; empty when there is one.
    [[nodiscard]] const VbString& error() const noexcept { return m_error; }

    /// Makes the context current on this thread. Returns false if there is none or it is lost.
    [[nodiscard]] bool makeCurrent();
    /// Whether the graphics system has reset the context, so that a new one must be made. It must be current.
    [[nodiscard]] static bool isLost();

    /// The address of the OpenGL function of that name, or null; for `NxGLFunctions::load`.
    [[nodiscard]] static void* getProcAddress(const char* name);

private:
    [[nodiscard]] bool setUp(void* display);
    void destroy();

    void* m_display = nullptr;
    void* m_surface = nullptr; // if the driver requires one
    void* m_context = nullptr;
    VbString m_error;
};
