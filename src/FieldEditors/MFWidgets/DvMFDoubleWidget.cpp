#include "FieldEditors/MFWidgets/DvMFDoubleWidget.h"

#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/MFWidgets/DvMFieldTable.h"
#include "FieldEditors/NumericFieldRange.h"

#include "meridane/scene/fields/list/NxMFDouble.h"

DvMFDoubleWidget::DvMFDoubleWidget(const char* name)
    : DvMFLineWidget(name != nullptr ? name : "DvMFDoubleWidget")
{
    m_handledType = NxMFDouble::getClassTypeId();
    m_name = "MFDouble";
}

DvMFDoubleWidget::~DvMFDoubleWidget() = default;

void DvMFDoubleWidget::load()
{
    setElementTypeLabel(QLatin1String("MFDouble"));
    DvMFLineWidget::load();
}

bool DvMFDoubleWidget::prepareForField(NxField* field)
{
    if (field == nullptr || !field->isOfType(NxMFDouble::getClassTypeId()))
        return false;
    m_range = orvane::realFieldRange(*field, "doubleField");
    setUpTable();
    m_table->setValueKind(orvane::kindNumber(orvane::CellKind::Double));
    m_table->setRealRange(static_cast<double>(m_range.doubleMin), static_cast<double>(m_range.doubleMax));
    m_table->setRangeBounded(m_range.bounded);
    return true;
}
