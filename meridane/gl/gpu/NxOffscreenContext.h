#pragma once

#include "meridane/base/values/VbString.h"

/// An OpenGL 3.3 core context that belongs to no window and needs no window system: what is drawn goes to framebuffer
/// objects. It is used on the thread that made it.
class NxOffscreenContext {
public:
    /// Sets the context up, without making it current; `isValid` tells whether that went well.
    NxOffscreenContext();
    /// Gives up the context, which is then current no longer. Objects in it go as well.
    ~NxOffscreenContext();
    NxOffscreenContext(const NxOffscreenContext&) = delete;
    NxOffscreenContext& operator=(const NxOffscreenContext&) = delete;

    [[nodiscard]] bool isValid() const noexcept { return m_context != nullptr; }
    /// Why there is no context, such as "the driver has no OpenGL 3.3"; empty when there is one.
    [[nodiscard]] const VbString& error() const noexcept { return m_error; }

    /// Makes the context that of the thread. False when there is none or it is lost.
    [[nodiscard]] bool makeCurrent();
    /// Whether the graphics system gave the context up, so that another one must be made. It must be current.
    [[nodiscard]] static bool isLost();

    /// The address of the OpenGL function of that name, or null, as `NxGLFunctions::load` takes it.
    [[nodiscard]] static void* getProcAddress(const char* name);

private:
    [[nodiscard]] bool setUp(void* display);
    void destroy();

    void* m_display = nullptr;
    void* m_surface = nullptr; // where the driver wants one
    void* m_context = nullptr;
    VbString m_error;
};
