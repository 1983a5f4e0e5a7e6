#include "FieldEditors/MFWidgets/DvMFUInt32Widget.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/MFWidgets/DvMFieldTable.h"

#include "meridane/scene/fields/list/NxMFUInt32.h"

DvMFUInt32Widget::DvMFUInt32Widget(const char* name)
    : DvMFLineWidget(name != nullptr ? name : "DvMFUInt32Widget")
{
    m_handledType = NxMFUInt32::getClassTypeId();
    m_name = "MFUInt32";
}

DvMFUInt32Widget::~DvMFUInt32Widget() = default;

void DvMFUInt32Widget::load()
{
    setElementTypeLabel(QLatin1String("MFUInt32"));
    DvMFLineWidget::load();
    m_table->setValueKind(orvane::kindNumber(orvane::CellKind::UInt32));
}

bool DvMFUInt32Widget::prepareForField(NxField* field)
{
    return field != nullptr && field->isOfType(NxMFUInt32::getClassTypeId());
}
