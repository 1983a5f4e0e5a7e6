#include "FieldEditors/SFWidgets/DvSFUShortWidget.h"

#include "FieldEditors/DvUIntSlider.h"
#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/NumericFieldRange.h"
#include "FieldEditors/SFWidgets/SliderRefresh.h"

#include "meridane/scene/fields/single/NxSFUShort.h"

DvSFUShortWidget::DvSFUShortWidget(const char* name)
    : DvSFieldWidget(orvane::kindNumber(orvane::SliderKind::UInt16), name)
{
    m_handledType = NxSFUShort::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFUShortWidget"));
    m_name = "SFUShort";
}

void DvSFUShortWidget::load()
{
    setFieldTypeLabel(QLatin1String("SFUShort"));
    DvSFieldWidget::load();
    m_range = orvane::integerFieldRange();
    m_slider = static_cast<DvUIntSlider*>(m_editionFrame);
    m_slider->setRange(static_cast<unsigned>(m_range.intMin), static_cast<unsigned>(m_range.intMax), m_range.bounded);
}

void DvSFUShortWidget::updateFromField()
{
    if (m_field == nullptr)
        return;
    orvane::showInteger(*m_slider, *m_field);
    DvSFieldWidget::updateFromField();
}

void DvSFUShortWidget::applyChanges()
{
    if (m_field != nullptr)
        orvane::applyInteger(*m_slider, *m_field, m_slider->value());
}

bool DvSFUShortWidget::edited()
{
    return m_slider != nullptr && m_slider->edited();
}
