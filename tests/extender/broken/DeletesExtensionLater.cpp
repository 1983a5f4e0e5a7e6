#include "extender/broken/Broken.h"

namespace {

class Clock;

class Plugin final : public OrvPlugin {
public:
    Plugin() = default;
    ~Plugin() override = default;

    void load() override;

private:
    std::unique_ptr<OrvExtension> m_clock;
    std::unique_ptr<OrvExtension> m_compass;
};

class Clock : public Quiet<OrvExtension> {
public:
    explicit Clock(std::unique_ptr<OrvExtension>& compass)
        : Quiet("Clock")
        , m_compass(compass)
    {
    }

    void activate() override
    {
        Quiet::activate();
        m_compass.reset();
    }

private:
    std::unique_ptr<OrvExtension>& m_compass;
};

void Plugin::load()
{
    m_clock = std::make_unique<Clock>(m_compass);
    m_compass = std::make_unique<Quiet<OrvExtension>>("Compass");
    addExtension(m_clock.get());
    addExtension(m_compass.get());
    OrvPlugin::load();
}

} // namespace

BROKEN_PLUGIN(Plugin)
