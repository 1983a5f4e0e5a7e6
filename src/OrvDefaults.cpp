#include "OrvDefaults.h"

OrvDefaults::OrvDefaults()
{
    m_name = "OrvDefaults";
    m_author = "KLD";
    m_description = "Plug-in which loads Orvane default extensions.";
    m_version = "1.0.0";
}

OrvDefaults::~OrvDefaults() = default;

void OrvDefaults::load()
{
    // Contract: the order in which the host lists the extensions, which isn't that of their declaration.
    addExtension(&m_profileSelector);
    addExtension(&m_console);
    addExtension(&m_mfColor);
    addExtension(&m_mfColorRGBA);
    addExtension(&m_mfDefaultField);
    addExtension(&m_mfDouble);
    // Contract: before the other editors of single values, unlike its declaration.
    addExtension(&m_sfFilePathString);
    addExtension(&m_mfFloat);
    addExtension(&m_mfInt32);
    addExtension(&m_mfMatrix);
    addExtension(&m_mfPlane);
    addExtension(&m_mfRotation);
    addExtension(&m_mfShort);
    addExtension(&m_mfString);
    addExtension(&m_mfUInt32);
    addExtension(&m_mfUShort);
    addExtension(&m_mfVec2f);
    addExtension(&m_mfVec2i32);
    addExtension(&m_mfVec2s);
    addExtension(&m_mfVec3f);
    addExtension(&m_mfVec4f);
    addExtension(&m_sfBitMask);
    addExtension(&m_sfBool);
    addExtension(&m_sfBox2f);
    addExtension(&m_sfBox3s);
    addExtension(&m_sfColor);
    addExtension(&m_sfColorRGBA);
    addExtension(&m_sfEnum);
    addExtension(&m_sfDouble);
    addExtension(&m_sfFloat);
    addExtension(&m_sfImage);
    addExtension(&m_sfInt32);
    addExtension(&m_sfLine);
    addExtension(&m_sfMatrix);
    addExtension(&m_sfName);
    addExtension(&m_sfPlane);
    addExtension(&m_sfRotation);
    addExtension(&m_sfShort);
    addExtension(&m_sfString);
    addExtension(&m_sfUInt32);
    addExtension(&m_sfUShort);
    addExtension(&m_sfVec2f);
    addExtension(&m_sfVec2i32);
    addExtension(&m_sfVec2s);
    addExtension(&m_sfVec3f);
    addExtension(&m_sfVec4f);
    addExtension(&m_fieldEditorDock);
    addExtension(&m_nodeEditor);
    OrvPlugin::load();
}
