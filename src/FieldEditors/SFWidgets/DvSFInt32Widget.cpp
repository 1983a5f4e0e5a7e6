#include "FieldEditors/SFWidgets/DvSFInt32Widget.h"

#include "FieldEditors/DvIntSlider.h"
#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/FieldChanges.h"
#include "FieldEditors/NumericFieldRange.h"
#include "FieldEditors/SFWidgets/SliderRefresh.h"

#include "meridane/scene/fields/single/NxSFInt32.h"

DvSFInt32Widget::DvSFInt32Widget(const char* name)
    : DvSFieldWidget(orvane::kindNumber(orvane::SliderKind::Int32), name)
{
    m_handledType = NxSFInt32::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFInt32Widget"));
    m_name = "SFInt32";
}

void DvSFInt32Widget::load()
{
    setFieldTypeLabel(QLatin1String("SFInt32"));
    DvSFieldWidget::load();
    m_range = orvane::integerFieldRange();
    m_slider = static_cast<DvIntSlider*>(m_editionFrame);
    m_slider->setRange(m_range.intMin, m_range.intMax, m_range.bounded);
}

void DvSFInt32Widget::updateFromField()
{
    if (m_field == nullptr)
        return;
    orvane::showInteger(*m_slider, *m_field);
    DvSFieldWidget::updateFromField();
}

void DvSFInt32Widget::applyChanges()
{
    if (m_field == nullptr)
        return;
    // Contract: always decimal, whatever the radix of the slider, and as plain bytes, unlike the other integers.
    m_field->set(QString::number(m_slider->value()).toLatin1().constData());
    orvane::pushSetValueCommand(m_field, m_slider->commandValue());
}

bool DvSFInt32Widget::edited()
{
    return m_slider != nullptr && m_slider->edited();
}
