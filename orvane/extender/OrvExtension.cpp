#include "orvane/extender/OrvExtension.h"

#include "orvane/extender/OrvPluginsManager.h"
#include "orvane/extender/OrvProfile.h"

OrvExtension::OrvExtension() = default;

OrvExtension::~OrvExtension() = default;

void OrvExtension::activate()
{
    m_active = true;
}

void OrvExtension::deactivate()
{
    m_active = false;
}

// The host keeps no widget of an extension, so there is nothing to hide or show here.
void OrvExtension::hide() { }

void OrvExtension::show() { }

OrvProfileSetting* OrvExtension::getProfileSetting() const
{
    const OrvPluginsManager* const manager = OrvPluginsManager::getInstance();
    const OrvProfile* const profile = manager != nullptr ? manager->getActiveProfile() : nullptr;
    return profile != nullptr ? profile->getSetting(this) : nullptr;
}
