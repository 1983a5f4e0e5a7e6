#include "meridane/gl/painting/detail/LightBuffer.h"

#include "meridane/gl/gpu/detail/SurfaceShaders.h"
#include "meridane/gl/places/detail/Lights.h"

#include <cstddef>
#include <utility>

namespace meridane {

LightBuffer::~LightBuffer()
{
    m_gl.DeleteBuffers(1, &m_buffer);
}

void LightBuffer::forget()
{
    m_buffer = 0;
    m_isFilled = false;
}

void LightBuffer::start(bool hasHeadLight, const VbVec3d& eye)
{
    m_eye = eye;
    if (std::exchange(m_hasHeadLight, hasHeadLight) != hasHeadLight)
        m_isFilled = false;
}

void LightBuffer::bind() const
{
    if (m_buffer != 0)
        m_gl.BindBufferBase(GL_UNIFORM_BUFFER, lightsBinding, m_buffer);
}

void LightBuffer::set(const PlacedScene& scene, const LightList* lights)
{
    if (m_isFilled && m_lights == lights && m_lighting == scene.lighting() && m_lightingEye == m_eye)
        return;
    m_isFilled = true;
    m_lights = lights;
    m_lighting = scene.lighting();
    m_lightingEye = m_eye;
    LightsBlock block;
    std::size_t count = 0;
    for (const LightList* list = lights; list != nullptr; list = list->above())
        block.lights[count++]
            = lightValues(list->light().light(), scene.table().worldTransforms[list->worldTransform()], m_eye);
    if (lights == nullptr || (m_hasHeadLight && count < block.lights.size()))
        block.lights[count++] = cameraLightValues();
    block.count = static_cast<float>(count);
    if (m_buffer == 0)
        m_gl.GenBuffers(1, &m_buffer);
    m_gl.BindBufferBase(GL_UNIFORM_BUFFER, lightsBinding, m_buffer);
    m_gl.BufferData(GL_UNIFORM_BUFFER, sizeof(block), nullptr, GL_DYNAMIC_DRAW);
    const std::size_t usedBytes = offsetof(LightsBlock, lights) + count * sizeof(LightValues);
    m_gl.BufferSubData(GL_UNIFORM_BUFFER, 0, static_cast<GLsizeiptr>(usedBytes), &block);
}

} // namespace meridane
