#include "FieldEditors/SFWidgets/SliderRefresh.h"

#include "FieldEditors/DvRealSlider.h"

#include "orvane/extender/VbText.h"

#include "meridane/scene/NxField.h"

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
