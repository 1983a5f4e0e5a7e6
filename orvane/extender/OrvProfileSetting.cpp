#include "orvane/extender/OrvProfileSetting.h"

void OrvProfileSetting::addControlledExtension(OrvExtension* extension, OrvProfileSetting* setting)
{
    m_controlled.insert_or_assign(extension, setting);
}
