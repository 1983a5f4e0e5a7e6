#pragma once

#include "meridane/scene/fields/NxFieldSensor.h"

#include <functional>
#include <map>
#include <memory>

class NxTexture;

namespace meridane {

/// Watches the roles of textures that no look uses.
class TextureWatch {
public:
    /// `changed` is called from the delay queue after the role of a watched texture has changed.
    explicit TextureWatch(std::function<void()> changed);
    TextureWatch(const TextureWatch&) = delete;
    TextureWatch& operator=(const TextureWatch&) = delete;
    ~TextureWatch();

    void watch(NxTexture& texture);
    /// Whether a role has changed since the last `clear`.
    [[nodiscard]] bool isChanged() const noexcept { return m_isChanged; }
    /// Watches nothing any more.
    void clear();

private:
    class Sensor;

    std::function<void()> m_changed;
    std::map<const NxTexture*, std::unique_ptr<Sensor>> m_sensors;
    bool m_isChanged = false;
};

} // namespace meridane
