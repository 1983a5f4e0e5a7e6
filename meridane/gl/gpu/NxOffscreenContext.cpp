#include "meridane/gl/gpu/NxOffscreenContext.h"

// Plain types, without the headers of a window system.
#define EGL_NO_X11
#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include <EGL/egl.h>
#include <EGL/eglext.h>

namespace {

bool hasExtension(EGLDisplay display, std::string_view name)
{
    const char* all = eglQueryString(display, EGL_EXTENSIONS);
    if (all == nullptr)
        return false;
    const std::string_view list(all);
    for (std::size_t start = list.find(name); start != std::string_view::npos; start = list.find(name, start + 1)) {
        const std::size_t end = start + name.size();
        if ((start == 0 || list[start - 1] == ' ') && (end == list.size() || list[end] == ' '))
            return true;
    }
    return false;
}

template <typename Pointer>
Pointer findFunction(const char* name)
{
    return reinterpret_cast<Pointer>(eglGetProcAddress(name));
}

/// All displays to try, those without a window system first.
std::vector<EGLDisplay> displays()
{
    std::vector<EGLDisplay> result;
    const auto platformDisplay = findFunction<PFNEGLGETPLATFORMDISPLAYEXTPROC>("eglGetPlatformDisplayEXT");
    if (platformDisplay != nullptr && hasExtension(EGL_NO_DISPLAY, "EGL_MESA_platform_surfaceless"))
        result.push_back(platformDisplay(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY, nullptr));
    const auto queryDevices = findFunction<PFNEGLQUERYDEVICESEXTPROC>("eglQueryDevicesEXT");
    if (platformDisplay != nullptr && queryDevices != nullptr
        && hasExtension(EGL_NO_DISPLAY, "EGL_EXT_platform_device")) {
        std::array<EGLDeviceEXT, 16> devices{};
        EGLint count = 0;
        if (queryDevices(static_cast<EGLint>(devices.size()), devices.data(), &count) == EGL_TRUE) {
            for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i)
                result.push_back(platformDisplay(EGL_PLATFORM_DEVICE_EXT, devices[i], nullptr));
        }
    }
    result.push_back(eglGetDisplay(EGL_DEFAULT_DISPLAY));
    return result;
}

// Nothing is drawn to a surface, so a display without surfaces needs no configuration.
EGLConfig chooseConfig(EGLDisplay display)
{
    const std::array<EGLint, 5> wanted{
        EGL_RENDERABLE_TYPE, EGL_OPENGL_BIT, EGL_SURFACE_TYPE, EGL_PBUFFER_BIT, EGL_NONE};
    EGLConfig config = EGL_NO_CONFIG_KHR;
    EGLint count = 0;
    return eglChooseConfig(display, wanted.data(), &config, 1, &count) == EGL_TRUE && count > 0 ? config
                                                                                                : EGL_NO_CONFIG_KHR;
}

EGLContext createContext(EGLDisplay display, EGLConfig config)
{
    std::vector<EGLint> attributes{EGL_CONTEXT_MAJOR_VERSION, 3, EGL_CONTEXT_MINOR_VERSION, 3,
        EGL_CONTEXT_OPENGL_PROFILE_MASK, EGL_CONTEXT_OPENGL_CORE_PROFILE_BIT};
    // So that the driver reports a reset of the GPU.
    std::vector<EGLint> robust = attributes;
    robust.insert(robust.end(), {EGL_CONTEXT_OPENGL_RESET_NOTIFICATION_STRATEGY, EGL_LOSE_CONTEXT_ON_RESET, EGL_NONE});
    if (EGLContext context = eglCreateContext(display, config, EGL_NO_CONTEXT, robust.data());
        context != EGL_NO_CONTEXT)
        return context;
    attributes.push_back(EGL_NONE);
    return eglCreateContext(display, config, EGL_NO_CONTEXT, attributes.data());
}

} // namespace

NxOffscreenContext::NxOffscreenContext()
{
    m_error = "there is no EGL display";
    for (EGLDisplay display : displays()) {
        // A display remains initialised until the process ends, because others in the process may use it.
        if (display == EGL_NO_DISPLAY || eglInitialize(display, nullptr, nullptr) != EGL_TRUE)
            continue;
        if (setUp(display)) {
            m_error = VbString();
            return;
        }
    }
}

bool NxOffscreenContext::setUp(void* display)
{
    if (eglBindAPI(EGL_OPENGL_API) != EGL_TRUE) {
        m_error = "the driver has no OpenGL";
        return false;
    }
    EGLConfig config = chooseConfig(display);
    EGLContext context = createContext(display, config);
    if (context == EGL_NO_CONTEXT) {
        m_error = "the driver has no OpenGL 3.3";
        return false;
    }
    m_display = display;
    m_context = context;
    // If the driver requires a surface, the smallest one is made.
    const std::array<EGLint, 5> size{EGL_WIDTH, 1, EGL_HEIGHT, 1, EGL_NONE};
    if (!hasExtension(display, "EGL_KHR_surfaceless_context"))
        m_surface = eglCreatePbufferSurface(display, config, size.data());
    if (makeCurrent()) {
        eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
        return true;
    }
    m_error = "the driver can't draw without a window";
    destroy();
    return false;
}

NxOffscreenContext::~NxOffscreenContext()
{
    destroy();
}

void NxOffscreenContext::destroy()
{
    if (m_context == nullptr)
        return;
    if (eglGetCurrentContext() == m_context)
        eglMakeCurrent(m_display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    if (m_surface != nullptr)
        eglDestroySurface(m_display, m_surface);
    eglDestroyContext(m_display, m_context);
    m_surface = nullptr;
    m_context = nullptr;
}

bool NxOffscreenContext::makeCurrent()
{
    if (m_context == nullptr)
        return false;
    if (eglGetCurrentContext() == m_context)
        return true;
    eglBindAPI(EGL_OPENGL_API);
    return eglMakeCurrent(m_display, m_surface, m_surface, m_context) == EGL_TRUE;
}

bool NxOffscreenContext::isLost()
{
    using ResetStatus = unsigned int (*)();
    auto status = findFunction<ResetStatus>("glGetGraphicsResetStatus");
    if (status == nullptr)
        status = findFunction<ResetStatus>("glGetGraphicsResetStatusARB");
    return status != nullptr && status() != 0;
}

void* NxOffscreenContext::getProcAddress(const char* name)
{
    return findFunction<void*>(name);
}
