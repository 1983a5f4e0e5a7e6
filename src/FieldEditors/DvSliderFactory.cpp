#include "FieldEditors/DvSliderFactory.h"

#include "FieldEditors/DvIntSlider.h"
#include "FieldEditors/DvRealSlider.h"
#include "FieldEditors/DvUIntSlider.h"
#include "FieldEditors/EditorKinds.h"

QFrame* makeSlider(int kind, OrvFieldEditors* owner, QWidget* parent)
{
    using orvane::IntegerKind;
    using orvane::kindNumber;
    using orvane::SliderKind;
    constexpr int mode = DvSlider::FieldEditor;
    switch (static_cast<SliderKind>(kind)) {
    case SliderKind::Float:
        return new DvRealSlider(mode, owner, parent, true);
    case SliderKind::Double:
        return new DvRealSlider(mode, owner, parent, false);
    case SliderKind::Int32:
        return new DvIntSlider(kindNumber(IntegerKind::Int32), mode, owner, parent);
    case SliderKind::UInt32:
        return new DvUIntSlider(kindNumber(IntegerKind::UInt32), mode, owner, parent);
    case SliderKind::Int16:
        return new DvIntSlider(kindNumber(IntegerKind::Int16), mode, owner, parent);
    case SliderKind::UInt16:
        return new DvUIntSlider(kindNumber(IntegerKind::UInt16), mode, owner, parent);
    default:
        return nullptr;
    }
}
