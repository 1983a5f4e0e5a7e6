#pragma once

#include "Console/OrvConsole.h"
#include "FieldEditors/MFWidgets/DvMFColorRGBAWidget.h"
#include "FieldEditors/MFWidgets/DvMFColorWidget.h"
#include "FieldEditors/MFWidgets/DvMFDefaultFieldWidget.h"
#include "FieldEditors/MFWidgets/DvMFDoubleWidget.h"
#include "FieldEditors/MFWidgets/DvMFFloatWidget.h"
#include "FieldEditors/MFWidgets/DvMFInt32Widget.h"
#include "FieldEditors/MFWidgets/DvMFMatrixWidget.h"
#include "FieldEditors/MFWidgets/DvMFPlaneWidget.h"
#include "FieldEditors/MFWidgets/DvMFRotationWidget.h"
#include "FieldEditors/MFWidgets/DvMFShortWidget.h"
#include "FieldEditors/MFWidgets/DvMFStringWidget.h"
#include "FieldEditors/MFWidgets/DvMFUInt32Widget.h"
#include "FieldEditors/MFWidgets/DvMFUShortWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec2fWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec2i32Widget.h"
#include "FieldEditors/MFWidgets/DvMFVec2sWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec3fWidget.h"
#include "FieldEditors/MFWidgets/DvMFVec4fWidget.h"
#include "FieldEditors/SFWidgets/DvSFBitMaskWidget.h"
#include "FieldEditors/SFWidgets/DvSFBoolWidget.h"
#include "FieldEditors/SFWidgets/DvSFBox2fWidget.h"
#include "FieldEditors/SFWidgets/DvSFBox3sWidget.h"
#include "FieldEditors/SFWidgets/DvSFColorRGBAWidget.h"
#include "FieldEditors/SFWidgets/DvSFColorWidget.h"
#include "FieldEditors/SFWidgets/DvSFDoubleWidget.h"
#include "FieldEditors/SFWidgets/DvSFEnumWidget.h"
#include "FieldEditors/SFWidgets/DvSFFilePathStringWidget.h"
#include "FieldEditors/SFWidgets/DvSFFloatWidget.h"
#include "FieldEditors/SFWidgets/DvSFImageWidget.h"
#include "FieldEditors/SFWidgets/DvSFInt32Widget.h"
#include "FieldEditors/SFWidgets/DvSFLineWidget.h"
#include "FieldEditors/SFWidgets/DvSFMatrixWidget.h"
#include "FieldEditors/SFWidgets/DvSFNameWidget.h"
#include "FieldEditors/SFWidgets/DvSFPlaneWidget.h"
#include "FieldEditors/SFWidgets/DvSFRotationWidget.h"
#include "FieldEditors/SFWidgets/DvSFShortWidget.h"
#include "FieldEditors/SFWidgets/DvSFStringWidget.h"
#include "FieldEditors/SFWidgets/DvSFUInt32Widget.h"
#include "FieldEditors/SFWidgets/DvSFUShortWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec2fWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec2i32Widget.h"
#include "FieldEditors/SFWidgets/DvSFVec2sWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec3fWidget.h"
#include "FieldEditors/SFWidgets/DvSFVec4fWidget.h"
#include "OrvFieldEditorDockWin.h"
#include "OrvNodeEditor.h"
#include "Profiles/OrvProfileSelectorExtension.h"

#include "orvane/extender/OrvPlugin.h"

/// The default plug-in: owns every extension of this library.
class OrvDefaults final : public OrvPlugin {
public:
    OrvDefaults();
    /// Registers the extensions and has the host load them.
    void load() override;
    ~OrvDefaults() override;

private:
    // Contract: the docks compare the editors in this order, that of their addresses; of two editors of the same type,
    // the one declared last wins.
    OrvProfileSelectorExtension m_profileSelector;
    OrvConsole m_console;
    DvMFColorWidget m_mfColor;
    DvMFColorRGBAWidget m_mfColorRGBA;
    DvMFDefaultFieldWidget m_mfDefaultField;
    DvMFDoubleWidget m_mfDouble;
    DvMFFloatWidget m_mfFloat;
    DvMFInt32Widget m_mfInt32;
    DvMFMatrixWidget m_mfMatrix;
    DvMFPlaneWidget m_mfPlane;
    DvMFRotationWidget m_mfRotation;
    DvMFShortWidget m_mfShort;
    DvMFStringWidget m_mfString;
    DvMFUInt32Widget m_mfUInt32;
    DvMFUShortWidget m_mfUShort;
    DvMFVec2fWidget m_mfVec2f;
    DvMFVec2i32Widget m_mfVec2i32;
    DvMFVec2sWidget m_mfVec2s;
    DvMFVec3fWidget m_mfVec3f;
    DvMFVec4fWidget m_mfVec4f;
    DvSFBitMaskWidget m_sfBitMask;
    DvSFBoolWidget m_sfBool;
    DvSFBox2fWidget m_sfBox2f;
    DvSFBox3sWidget m_sfBox3s;
    DvSFColorWidget m_sfColor;
    DvSFColorRGBAWidget m_sfColorRGBA;
    DvSFEnumWidget m_sfEnum;
    DvSFDoubleWidget m_sfDouble;
    DvSFFilePathStringWidget m_sfFilePathString;
    DvSFFloatWidget m_sfFloat;
    DvSFImageWidget m_sfImage;
    DvSFInt32Widget m_sfInt32;
    DvSFLineWidget m_sfLine;
    DvSFMatrixWidget m_sfMatrix;
    DvSFNameWidget m_sfName;
    DvSFPlaneWidget m_sfPlane;
    DvSFRotationWidget m_sfRotation;
    DvSFShortWidget m_sfShort;
    DvSFStringWidget m_sfString;
    DvSFUInt32Widget m_sfUInt32;
    DvSFUShortWidget m_sfUShort;
    DvSFVec2fWidget m_sfVec2f;
    DvSFVec2i32Widget m_sfVec2i32;
    DvSFVec2sWidget m_sfVec2s;
    DvSFVec3fWidget m_sfVec3f;
    DvSFVec4fWidget m_sfVec4f;
    OrvFieldEditorDockWin m_fieldEditorDock;
    OrvNodeEditor m_nodeEditor;
};
