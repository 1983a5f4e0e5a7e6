#include "FieldEditors/SFWidgets/SliderRefresh.h"

#include "FieldEditors/DvRealSlider.h"
#include "FieldEditors/FieldChanges.h"

#include "orvane/extender/VbText.h"

#include "meridane/scene/fields/NxField.h"

void orvane::showReal(DvRealSlider& slider, double value)
{
    if (value > slider.upperBound())
        slider.setRange(slider.lowerBound(), value, slider.isBounded());
    if (slider.lowerBound() > value)
        slider.setRange(value, slider.upperBound(), slider.isBounded());
    slider.setValue(value);
}

void orvane::showInteger(DvSlider& slider, const NxField& field)
{
    VbString text;
    field.get(text);
    slider.setValueText(toQString(text));
}

void orvane::applyInteger(DvSlider& slider, NxField& field, std::int64_t value)
{
    field.set(toVbString(QString::number(value)));
    pushSetValueCommand(&field, slider.commandValue());
}
