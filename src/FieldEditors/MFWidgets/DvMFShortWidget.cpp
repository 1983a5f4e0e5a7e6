#include "FieldEditors/MFWidgets/DvMFShortWidget.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/MFWidgets/DvMFieldTable.h"

#include "meridane/scene/fields/list/NxMFShort.h"

DvMFShortWidget::DvMFShortWidget(const char* name)
    : DvMFLineWidget(name != nullptr ? name : "DvMFShortWidget")
{
    m_handledType = NxMFShort::getClassTypeId();
    m_name = "MFShort";
}

DvMFShortWidget::~DvMFShortWidget() = default;

void DvMFShortWidget::load()
{
    setElementTypeLabel(QLatin1String("MFShort"));
    DvMFLineWidget::load();
    m_table->setValueKind(orvane::kindNumber(orvane::CellKind::Int16));
}

bool DvMFShortWidget::prepareForField(NxField* field)
{
    return field != nullptr && field->isOfType(NxMFShort::getClassTypeId());
}
