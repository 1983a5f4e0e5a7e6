#include "SamplePlugin.h"

SamplePlugin::SamplePlugin()
{
    m_name = "Sample";
    m_author = "The authors of Orvane";
    m_description = "A plug-in to copy.";
    m_version = "1.0.0";
}

SamplePlugin::~SamplePlugin() = default;

void SamplePlugin::load()
{
    // First the extensions, then the host's own part, which loads them.
    addExtension(&m_fieldTextDock);
    OrvPlugin::load();
}
