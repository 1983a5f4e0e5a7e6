#include "FieldEditors/MFWidgets/DvMFUShortWidget.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/MFWidgets/DvMFieldTable.h"

#include "meridane/scene/fields/list/NxMFUShort.h"

DvMFUShortWidget::DvMFUShortWidget(const char* name)
    : DvMFLineWidget(name != nullptr ? name : "DvMFUShortWidget")
{
    m_handledType = NxMFUShort::getClassTypeId();
    m_name = "MFUShort";
}

DvMFUShortWidget::~DvMFUShortWidget() = default;

void DvMFUShortWidget::load()
{
    setElementTypeLabel(QLatin1String("MFUShort"));
    DvMFLineWidget::load();
    m_table->setValueKind(orvane::kindNumber(orvane::CellKind::UInt16));
}

bool DvMFUShortWidget::prepareForField(NxField* field)
{
    return field != nullptr && field->isOfType(NxMFUShort::getClassTypeId());
}
