#include "FieldEditors/MFWidgets/DvMFFloatWidget.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/MFWidgets/DvMFieldTable.h"
#include "FieldEditors/NumericFieldRange.h"

#include "meridane/scene/fields/list/NxMFFloat.h"

DvMFFloatWidget::DvMFFloatWidget(const char* name)
    : DvMFLineWidget(name != nullptr ? name : "DvMFFloatWidget")
{
    m_handledType = NxMFFloat::getClassTypeId();
    m_name = "MFFloat";
}

DvMFFloatWidget::~DvMFFloatWidget() = default;

void DvMFFloatWidget::load()
{
    setElementTypeLabel(QLatin1String("MFFloat"));
    DvMFLineWidget::load();
}

bool DvMFFloatWidget::prepareForField(NxField* field)
{
    if (field == nullptr || !field->isOfType(NxMFFloat::getClassTypeId()))
        return false;
    m_range = orvane::realFieldRange(*field, "floatField");
    setUpTable();
    m_table->setValueKind(orvane::kindNumber(orvane::CellKind::Float));
    m_table->setRealRange(static_cast<double>(m_range.floatMin), static_cast<double>(m_range.floatMax));
    m_table->setRangeBounded(m_range.bounded);
    return true;
}
