#pragma once

#include "meridane/base/values/VbVec.h"
#include "meridane/gl/gpu/NxGLFunctions.h"
#include "meridane/gl/places/detail/PlacedScene.h"

#include <cstdint>

namespace meridane {

/// The lights of the items that are drawn, in a buffer on the GPU. It is filled only when they change.
class LightBuffer {
public:
    explicit LightBuffer(const NxGLFunctions& gl)
        : m_gl(gl)
    {
    }
    LightBuffer(const LightBuffer&) = delete;
    LightBuffer& operator=(const LightBuffer&) = delete;
    /// The context must be current, or `forget` have been called.
    ~LightBuffer();

    /// Starts a picture that is seen from there, with or without a light at the eye beside the scene's.
    void start(bool hasHeadLight, const VbVec3d& eye);
    /// Binds the buffer, for what is drawn with it.
    void bind() const;
    /// Sets the lights; without any, there is one at the eye.
    void set(const PlacedScene& scene, const LightList* lights);
    /// To be called when the context is lost.
    void forget();

private:
    const NxGLFunctions& m_gl;
    unsigned int m_buffer = 0;
    bool m_hasHeadLight = false;
    VbVec3d m_eye;
    /// What the buffer was filled with.
    const LightList* m_lights = nullptr;
    std::uint64_t m_lighting = 0;
    VbVec3d m_lightingEye;
    bool m_isFilled = false;
};

} // namespace meridane
