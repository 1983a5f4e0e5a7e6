#include "FieldEditors/SFWidgets/DvSFShortWidget.h"

#include "FieldEditors/DvIntSlider.h"
#include "FieldEditors/FieldChanges.h"
#include "FieldEditors/NumericFieldRange.h"
#include "FieldEditors/SFWidgets/SliderRefresh.h"

#include "orvane/extender/VbText.h"

#include "meridane/scene/NxSFShort.h"

DvSFShortWidget::DvSFShortWidget(const char* name)
    : DvSFieldWidget(5, name)
{
    m_handledType = NxSFShort::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFShortWidget"));
    m_name = "SFShort";
}

void DvSFShortWidget::load()
{
    setFieldTypeLabel(QLatin1String("SFShort"));
    DvSFieldWidget::load();
    m_range = orvane::integerFieldRange();
    m_slider = static_cast<DvIntSlider*>(m_editionFrame);
    m_slider->setRange(m_range.intMin, m_range.intMax, m_range.bounded);
}

void DvSFShortWidget::updateFromField()
{
    if (m_field == nullptr)
        return;
    orvane::showInteger(*m_slider, *m_field);
    DvSFieldWidget::updateFromField();
}

void DvSFShortWidget::applyChanges()
{
    if (m_field == nullptr)
        return;
    // Always decimal, whatever the radix of the slider.
    m_field->set(orvane::toVbString(QString::number(m_slider->value())));
    orvane::pushSetValueCommand(m_field, m_slider->commandValue());
}

bool DvSFShortWidget::edited()
{
    return m_slider != nullptr && m_slider->edited();
}
