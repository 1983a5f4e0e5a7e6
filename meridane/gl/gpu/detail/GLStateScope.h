#pragma once

#include "meridane/gl/gpu/NxGLFunctions.h"

#include <array>
#include <cstddef>

namespace meridane {

/// Changes state of the OpenGL context. The end of the scope restores what was changed to OpenGL's default, so scopes
/// inside each other must change different state. Queries nothing from the driver.
class GLStateScope {
public:
    explicit GLStateScope(const NxGLFunctions& gl) noexcept
        : m_gl(gl)
    {
    }
    GLStateScope(const GLStateScope&) = delete;
    GLStateScope& operator=(const GLStateScope&) = delete;
    ~GLStateScope();

    /// Enables or disables a capability that is off by default.
    void setEnabled(GLenum capability, bool isEnabled = true);
    /// Blends translucent pixels over the picture.
    void blend();
    void setDepthFunction(GLenum function);
    void setDepthWrites(bool areOn);
    /// In pixels.
    void setLineWidth(float width);
    /// `GL_LINE` draws the borders of triangles only.
    void setPolygonMode(GLenum mode);
    void setFrontFace(GLenum orientation);
    void setCulledFace(GLenum face);
    /// Limits drawing and clearing to that part of the picture, in pixels.
    void setScissor(int left, int bottom, int width, int height);
    /// The number of bytes to which the rows of an image are aligned.
    void setUnpackAlignment(int bytes);
    /// How many texture units drawing uses. The first one is active, except while another is being bound.
    static constexpr unsigned int textureUnits = 3;
    /// The caller binds a program, vertex arrays, vertex buffers, and textures and samplers of the first units.
    void bindObjects() noexcept { m_changed |= Bindings; }

private:
    enum Part : unsigned {
        BlendFunction = 1U << 0U,
        DepthFunction = 1U << 1U,
        DepthWrites = 1U << 2U,
        LineWidth = 1U << 3U,
        PolygonMode = 1U << 4U,
        FrontFace = 1U << 5U,
        CulledFace = 1U << 6U,
        UnpackAlignment = 1U << 7U,
        Bindings = 1U << 8U,
    };
    static constexpr std::size_t maxCapabilities = 4;

    void restoreBindings();

    const NxGLFunctions& m_gl;
    unsigned m_changed = 0;
    std::array<GLenum, maxCapabilities> m_capabilities{};
    std::size_t m_capabilityCount = 0;
};

} // namespace meridane
