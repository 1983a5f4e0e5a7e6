#include "FieldEditors/SFWidgets/DvSFShortWidget.h"

#include "FieldEditors/DvIntSlider.h"
#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/NumericFieldRange.h"
#include "FieldEditors/SFWidgets/SliderRefresh.h"

#include "meridane/scene/fields/single/NxSFShort.h"

DvSFShortWidget::DvSFShortWidget(const char* name)
    : DvSFieldWidget(orvane::kindNumber(orvane::SliderKind::Int16), name)
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
    if (m_field != nullptr)
        orvane::applyInteger(*m_slider, *m_field, m_slider->value());
}

bool DvSFShortWidget::edited()
{
    return m_slider != nullptr && m_slider->edited();
}
