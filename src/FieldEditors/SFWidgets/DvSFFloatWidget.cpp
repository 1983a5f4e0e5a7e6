#include "FieldEditors/SFWidgets/DvSFFloatWidget.h"

#include "FieldEditors/DvRealSlider.h"
#include "FieldEditors/EditorKinds.h"
#include "FieldEditors/FieldChanges.h"
#include "FieldEditors/NumericFieldRange.h"
#include "FieldEditors/SFWidgets/SliderRefresh.h"

#include "meridane/scene/fields/single/NxSFFloat.h"

DvSFFloatWidget::DvSFFloatWidget(const char* name)
    : DvSFieldWidget(orvane::kindNumber(orvane::SliderKind::Float), name)
{
    m_handledType = NxSFFloat::getClassTypeId();
    if (name == nullptr)
        setObjectName(QLatin1String("DvSFFloatWidget"));
    m_name = "SFFloat";
}

void DvSFFloatWidget::load()
{
    setFieldTypeLabel(QLatin1String("SFFloat"));
    DvSFieldWidget::load();
}

void DvSFFloatWidget::setField(NxField* field)
{
    if (field != nullptr) {
        m_range = orvane::realFieldRange(*field, "floatField");
        m_slider = static_cast<DvRealSlider*>(m_editionFrame);
        m_slider->setRange(
            static_cast<double>(m_range.floatMin), static_cast<double>(m_range.floatMax), m_range.bounded);
    }
    DvSFieldWidget::setField(field);
}

void DvSFFloatWidget::updateFromField()
{
    if (m_field == nullptr)
        return;
    orvane::showReal(*m_slider, static_cast<double>(static_cast<NxSFFloat*>(m_field)->getValue()));
    DvSFieldWidget::updateFromField();
}

void DvSFFloatWidget::applyChanges()
{
    if (m_field == nullptr)
        return;
    static_cast<NxSFFloat*>(m_field)->setValue(static_cast<float>(m_slider->value()));
    orvane::pushSetValueCommand(m_field, m_slider->commandValue());
}

bool DvSFFloatWidget::edited()
{
    return m_slider != nullptr && m_slider->edited();
}
