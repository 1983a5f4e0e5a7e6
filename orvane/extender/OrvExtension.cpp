#include "orvane/extender/OrvExtension.h"

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

// The host doesn't know an extension's widgets, so there is nothing to hide or show here.
void OrvExtension::hide() { }

void OrvExtension::show() { }
