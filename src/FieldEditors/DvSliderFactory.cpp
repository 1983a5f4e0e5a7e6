#include "FieldEditors/DvSliderFactory.h"

#include "FieldEditors/DvIntSlider.h"
#include "FieldEditors/DvRealSlider.h"
#include "FieldEditors/DvUIntSlider.h"

QFrame* makeSlider(int kind, OrvFieldEditors* owner, QWidget* parent)
{
    // The integer sliders have kinds of their own.
    switch (kind) {
    case 1:
        return new DvRealSlider(DvSlider::FieldEditor, owner, parent, true);
    case 2:
        return new DvRealSlider(DvSlider::FieldEditor, owner, parent, false);
    case 3:
        return new DvIntSlider(1, DvSlider::FieldEditor, owner, parent);
    case 4:
        return new DvUIntSlider(2, DvSlider::FieldEditor, owner, parent);
    case 5:
        return new DvIntSlider(3, DvSlider::FieldEditor, owner, parent);
    case 6:
        return new DvUIntSlider(4, DvSlider::FieldEditor, owner, parent);
    default:
        return nullptr;
    }
}
