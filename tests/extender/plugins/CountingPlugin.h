#pragma once

#include "orvane/extender/OrvExtension.h"
#include "orvane/extender/OrvPlugin.h"

#include <QCoreApplication>
#include <QStringList>
#include <QVariant>

#include <stdexcept>

/// Notes what happens in the property "calls" of the application object, where the test reads it: the plug-ins and the
/// test share no code.
inline void note(const char* call)
{
    QCoreApplication* const application = QCoreApplication::instance();
    application->setProperty("calls", application->property("calls").toStringList() << QLatin1String(call));
}

class CountingExtension : public OrvExtension {
public:
    explicit CountingExtension(const char* name) { m_name = name; }

    void activate() override
    {
        OrvExtension::activate();
        note("activate");
    }
    void deactivate() override
    {
        OrvExtension::deactivate();
        note("deactivate");
    }
    void load() override { note("load"); }
    void unload() override { note("unload"); }
};

class CountingPlugin : public OrvPlugin {
public:
    explicit CountingPlugin(int version = orvaneInterfaceVersion)
        : OrvPlugin(version)
    {
        note("construct");
    }
    ~CountingPlugin() override { note("destroy"); }

    void load() override
    {
        addExtension(&m_extension);
        OrvPlugin::load();
    }

private:
    CountingExtension m_extension{"Counting"};
};
