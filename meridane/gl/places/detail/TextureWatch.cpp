#include "meridane/gl/places/detail/TextureWatch.h"

#include "meridane/scene/nodes/NxTexture.h"

#include <utility>

namespace meridane {

class TextureWatch::Sensor final : public NxFieldSensor {
public:
    explicit Sensor(TextureWatch& watch)
        : NxFieldSensor(&Sensor::report, &watch)
        , m_watch(watch)
    {
    }
    // Noted in the call that changes the field, so that the next picture shows it.
    void notify() override
    {
        m_watch.m_isChanged = true;
        NxFieldSensor::notify();
    }

private:
    static void report(void* data, NxSensor* /*sensor*/) { static_cast<TextureWatch*>(data)->m_changed(); }

    TextureWatch& m_watch;
};

TextureWatch::TextureWatch(std::function<void()> changed)
    : m_changed(std::move(changed))
{
}

TextureWatch::~TextureWatch() = default;

void TextureWatch::watch(NxTexture& texture)
{
    std::unique_ptr<Sensor>& sensor = m_sensors[&texture];
    if (!sensor)
        sensor = std::make_unique<Sensor>(*this);
    // A texture may also have the address of a destroyed one.
    if (sensor->getAttachedField() != &texture.role)
        sensor->attach(&texture.role);
}

void TextureWatch::clear()
{
    m_sensors.clear();
    m_isChanged = false;
}

} // namespace meridane
