#include "meridane/gl/gpu/detail/GLStateScope.h"

#include <algorithm>
#include <cassert>

namespace meridane {

GLStateScope::~GLStateScope()
{
    for (std::size_t i = 0; i < m_capabilityCount; ++i)
        m_gl.Disable(m_capabilities[i]);
    if ((m_changed & BlendFunction) != 0)
        m_gl.BlendFuncSeparate(GL_ONE, GL_ZERO, GL_ONE, GL_ZERO);
    if ((m_changed & DepthFunction) != 0)
        m_gl.DepthFunc(GL_LESS);
    if ((m_changed & DepthWrites) != 0)
        m_gl.DepthMask(GL_TRUE);
    if ((m_changed & LineWidth) != 0)
        m_gl.LineWidth(1);
    if ((m_changed & PolygonMode) != 0)
        m_gl.PolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    if ((m_changed & FrontFace) != 0)
        m_gl.FrontFace(GL_CCW);
    if ((m_changed & CulledFace) != 0)
        m_gl.CullFace(GL_BACK);
    constexpr int defaultAlignment = 4;
    if ((m_changed & UnpackAlignment) != 0)
        m_gl.PixelStorei(GL_UNPACK_ALIGNMENT, defaultAlignment);
    if ((m_changed & Bindings) != 0)
        restoreBindings();
}

void GLStateScope::setEnabled(GLenum capability, bool isEnabled)
{
    if (isEnabled)
        m_gl.Enable(capability);
    else
        m_gl.Disable(capability);
    auto* const end = m_capabilities.begin() + m_capabilityCount;
    if (std::find(m_capabilities.begin(), end, capability) != end)
        return;
    assert(m_capabilityCount < maxCapabilities && "a scope must not change more capabilities than it remembers");
    m_capabilities[m_capabilityCount++] = capability;
}

void GLStateScope::blend()
{
    setEnabled(GL_BLEND);
    m_gl.BlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    m_changed |= BlendFunction;
}

void GLStateScope::setDepthFunction(GLenum function)
{
    m_gl.DepthFunc(function);
    m_changed |= DepthFunction;
}

void GLStateScope::setDepthWrites(bool areOn)
{
    m_gl.DepthMask(areOn ? GL_TRUE : GL_FALSE);
    m_changed |= DepthWrites;
}

void GLStateScope::setLineWidth(float width)
{
    m_gl.LineWidth(width);
    m_changed |= LineWidth;
}

void GLStateScope::setPolygonMode(GLenum mode)
{
    m_gl.PolygonMode(GL_FRONT_AND_BACK, mode);
    m_changed |= PolygonMode;
}

void GLStateScope::setFrontFace(GLenum orientation)
{
    m_gl.FrontFace(orientation);
    m_changed |= FrontFace;
}

void GLStateScope::setCulledFace(GLenum face)
{
    m_gl.CullFace(face);
    m_changed |= CulledFace;
}

void GLStateScope::setScissor(int left, int bottom, int width, int height)
{
    setEnabled(GL_SCISSOR_TEST);
    m_gl.Scissor(left, bottom, width, height);
}

void GLStateScope::setUnpackAlignment(int bytes)
{
    m_gl.PixelStorei(GL_UNPACK_ALIGNMENT, bytes);
    m_changed |= UnpackAlignment;
}

void GLStateScope::restoreBindings()
{
    m_gl.BindVertexArray(0);
    m_gl.BindBuffer(GL_ARRAY_BUFFER, 0);
    for (unsigned int unit = textureUnits; unit-- > 0;) {
        m_gl.ActiveTexture(GL_TEXTURE0 + unit);
        m_gl.BindTexture(GL_TEXTURE_2D, 0);
        m_gl.BindSampler(unit, 0);
    }
    m_gl.UseProgram(0);
}

} // namespace meridane
