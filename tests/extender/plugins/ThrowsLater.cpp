#include "extender/plugins/CountingPlugin.h"
#include "extender/plugins/LoadedPlugin.h"

#include "orvane/extender/OrvServices.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldSensor.h"

#include <QEvent>

#include <stdexcept>
#include <vector>

namespace {

/// Where it throws, which the test says in a property of the application object.
bool throwsIn(const char* place)
{
    return QCoreApplication::instance()->property("fault").toString() == QLatin1String(place);
}

class ThrowingExtension : public OrvExtension {
public:
    ThrowingExtension() { m_name = "Throwing"; }

    void activate() override
    {
        OrvExtension::activate();
        note("Throwing.activate");
        connect(OrvServices::getInstance(), &OrvServices::selectedFieldChanged, this, &ThrowingExtension::follow);
    }
    void deactivate() override
    {
        OrvExtension::deactivate();
        note("Throwing.deactivate");
        disconnect(OrvServices::getInstance(), nullptr, this, nullptr);
        m_sensor.detach();
    }
    void load() override { }
    void unload() override { }

    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::DynamicPropertyChange && throwsIn("event"))
            throw 42;
        return OrvExtension::event(event);
    }

private:
    void follow(NxField* field)
    {
        if (field != nullptr && throwsIn("slot"))
            throw std::runtime_error("no such dial");
        m_sensor.attach(field);
    }

    NxFieldSensor m_sensor{[](void*, NxSensor*) {
                               // Thrown by the C++ library, which this plug-in has called.
                               if (throwsIn("sensor"))
                                   note(std::vector<const char*>().at(3));
                           },
        nullptr};
};

class ThrowingPlugin : public OrvPlugin {
public:
    void load() override
    {
        addExtension(&m_extension);
        OrvPlugin::load();
    }

private:
    ThrowingExtension m_extension;
};

} // namespace

OrvPlugin* loadPlugin()
{
    return LoadedPlugin<ThrowingPlugin>::make();
}

void unloadPlugin()
{
    LoadedPlugin<ThrowingPlugin>::destroy();
}
