#include "orvane/extender/OrvPlugin.h"

#include "orvane/extender/OrvExtension.h"

OrvPlugin::OrvPlugin(int interfaceVersion)
    : m_interfaceVersion(interfaceVersion)
{
}

OrvPlugin::~OrvPlugin() = default;

void OrvPlugin::addExtension(OrvExtension* extension)
{
    if (extension != nullptr && !m_extensions.contains(extension))
        m_extensions.append(extension);
}

void OrvPlugin::load()
{
    while (m_loadedCount < m_extensions.size()) {
        m_extensions.at(m_loadedCount)->load();
        ++m_loadedCount;
    }
}

void OrvPlugin::unload()
{
    while (m_loadedCount > 0)
        m_extensions.at(--m_loadedCount)->unload();
}
