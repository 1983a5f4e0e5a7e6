#include "FieldEditors/MFWidgets/DvMFInt32Widget.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/MFWidgets/DvMFieldTable.h"

#include "meridane/scene/fields/list/NxMFInt32.h"

DvMFInt32Widget::DvMFInt32Widget(const char* name)
    : DvMFLineWidget(name != nullptr ? name : "DvMFInt32Widget")
{
    m_handledType = NxMFInt32::getClassTypeId();
    m_name = "MFInt32";
}

DvMFInt32Widget::~DvMFInt32Widget() = default;

void DvMFInt32Widget::load()
{
    setElementTypeLabel(QLatin1String("MFInt32"));
    DvMFLineWidget::load();
    m_table->setValueKind(orvane::kindNumber(orvane::CellKind::Int32));
}

bool DvMFInt32Widget::prepareForField(NxField* field)
{
    return field != nullptr && field->isOfType(NxMFInt32::getClassTypeId());
}
