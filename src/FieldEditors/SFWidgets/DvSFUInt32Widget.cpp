#include "FieldEditors/SFWidgets/DvSFUInt32Widget.h"

#include "FieldEditors/DvUIntSlider.h"
#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/NumericFieldRange.h"
#include "FieldEditors/SFWidgets/SliderRefresh.h"

#include "meridane/scene/fields/single/NxSFUInt32.h"

DvSFUInt32Widget::DvSFUInt32Widget(const char* name)
    : DvSFieldWidget(orvane::kindNumber(orvane::SliderKind::UInt32), name)
{
    m_handledType = NxSFUInt32::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFUInt32Widget"));
    m_name = "SFUInt32";
}

void DvSFUInt32Widget::load()
{
    setFieldTypeLabel(QLatin1String("SFUInt32"));
    DvSFieldWidget::load();
    m_range = orvane::integerFieldRange();
    m_slider = static_cast<DvUIntSlider*>(m_editionFrame);
    m_slider->setRange(static_cast<unsigned>(m_range.intMin), static_cast<unsigned>(m_range.intMax), m_range.bounded);
}

void DvSFUInt32Widget::updateFromField()
{
    if (m_field == nullptr)
        return;
    orvane::showInteger(*m_slider, *m_field);
    DvSFieldWidget::updateFromField();
}

void DvSFUInt32Widget::applyChanges()
{
    if (m_field != nullptr)
        orvane::applyInteger(*m_slider, *m_field, m_slider->value());
}

bool DvSFUInt32Widget::edited()
{
    return m_slider != nullptr && m_slider->edited();
}
