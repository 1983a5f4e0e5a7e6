#include "FieldEditors/SFWidgets/DvSFDoubleWidget.h"

#include "FieldEditors/DvRealSlider.h"
#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/FieldChanges.h"
#include "FieldEditors/NumericFieldRange.h"
#include "FieldEditors/SFWidgets/SliderRefresh.h"

#include "meridane/scene/fields/single/NxSFDouble.h"

DvSFDoubleWidget::DvSFDoubleWidget(const char* name)
    : DvSFieldWidget(orvane::kindNumber(orvane::SliderKind::Double), name)
{
    m_handledType = NxSFDouble::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFDoubleWidget"));
    m_name = "SFDouble";
}

void DvSFDoubleWidget::load()
{
    setFieldTypeLabel(QLatin1String("SFDouble"));
    DvSFieldWidget::load();
}

void DvSFDoubleWidget::setField(NxField* field)
{
    if (field != nullptr) {
        m_range = orvane::realFieldRange(*field, "doubleField");
        m_slider = static_cast<DvRealSlider*>(m_editionFrame);
        m_slider->setRange(
            static_cast<double>(m_range.doubleMin), static_cast<double>(m_range.doubleMax), m_range.bounded);
    }
    DvSFieldWidget::setField(field);
}

void DvSFDoubleWidget::updateFromField()
{
    if (m_field == nullptr)
        return;
    orvane::showReal(*m_slider, static_cast<NxSFDouble*>(m_field)->getValue());
    DvSFieldWidget::updateFromField();
}

void DvSFDoubleWidget::applyChanges()
{
    if (m_field == nullptr)
        return;
    static_cast<NxSFDouble*>(m_field)->setValue(m_slider->value());
    orvane::pushSetValueCommand(m_field, m_slider->commandValue());
}

bool DvSFDoubleWidget::edited()
{
    return m_slider != nullptr && m_slider->edited();
}
