#pragma once

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
#include "plugin/ToolHarness.h"

#include <iterator>
#include <memory>

/// An editor of single values.
struct EditorEntry {
    const char* type; // the type word, which is also the extension's name
    std::unique_ptr<DvSFieldWidget> (*make)(const char* name);
    const char* value; // the text form of one that isn't the default
    const char* base = "DvSFieldWidget"; // the class that it derives from
};

template <typename Editor>
std::unique_ptr<DvSFieldWidget> makeEditor(const char* name)
{
    return std::make_unique<Editor>(name);
}

/// Every editor of single values.
inline constexpr EditorEntry singleValueEditors[] = {
    {"SFBitMask", makeEditor<DvSFBitMaskWidget>, "VISIBLE | LOCKED"},
    {"SFBool", makeEditor<DvSFBoolWidget>, "true"},
    {"SFBox2f", makeEditor<DvSFBox2fWidget>, "1 2 3 4", "DvPopupWidget"},
    {"SFBox3s", makeEditor<DvSFBox3sWidget>, "1 2 3 4 5 6", "DvPopupWidget"},
    {"SFColor", makeEditor<DvSFColorWidget>, "0.5 0.25 1"},
    {"SFColorRGBA", makeEditor<DvSFColorRGBAWidget>, "0.5 0.25 1 0.75"},
    {"SFDouble", makeEditor<DvSFDoubleWidget>, "2.5"},
    {"SFEnum", makeEditor<DvSFEnumWidget>, "HIGH"},
    {"SFFilePathString", makeEditor<DvSFFilePathStringWidget>, "\"abc\""},
    {"SFFloat", makeEditor<DvSFFloatWidget>, "2.5"},
    {"SFImage", makeEditor<DvSFImageWidget>, "2 1 1 0x00 0xff"},
    {"SFInt32", makeEditor<DvSFInt32Widget>, "25"},
    {"SField", makeEditor<DvSFLineWidget>, "2.5"},
    {"SFMatrix", makeEditor<DvSFMatrixWidget>, "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16", "DvPopupWidget"},
    {"SFName", makeEditor<DvSFNameWidget>, "\"abc\""},
    {"SFPlane", makeEditor<DvSFPlaneWidget>, "0 0 1 5", "DvSF4fBox"},
    {"SFRotation", makeEditor<DvSFRotationWidget>, "0 0 1 0.5", "DvSF4fBox"},
    {"SFShort", makeEditor<DvSFShortWidget>, "25"},
    {"SFString", makeEditor<DvSFStringWidget>, "\"abc\""},
    {"SFUInt32", makeEditor<DvSFUInt32Widget>, "25"},
    {"SFUShort", makeEditor<DvSFUShortWidget>, "25"},
    {"SFVec2f", makeEditor<DvSFVec2fWidget>, "1 2"},
    {"SFVec2i32", makeEditor<DvSFVec2i32Widget>, "1 2", "DvSF2iSpinBox"},
    {"SFVec2s", makeEditor<DvSFVec2sWidget>, "1 2", "DvSF2iSpinBox"},
    {"SFVec3f", makeEditor<DvSFVec3fWidget>, "1 2 3"},
    {"SFVec4f", makeEditor<DvSFVec4fWidget>, "1 2 3 4", "DvSF4fBox"},
};

/// The editor of a type word, which must be in the list.
inline const EditorEntry& editorEntry(const QString& type)
{
    const EditorEntry* entry = std::begin(singleValueEditors);
    while (type != QLatin1String(entry->type))
        ++entry;
    return *entry;
}

/// The field of the gallery that an editor is for; for that of any type one that has none of its own.
inline NxField& fieldFor(NxFieldGallery& node, const QString& type)
{
    if (type == QLatin1String("SField"))
        return node.sfTime;
    return *ToolHarness::fieldOf(node, type);
}
