// `set` of every field class; the first byte chooses the field. A value that was taken survives its own text form, and
// one that was refused leaves the field as it was.

#include "Fuzz.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxFieldGallery.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    if (count == 0)
        return 0;
    const NxRef<NxFieldGallery> first = new NxFieldGallery;
    const NxRef<NxFieldGallery> second = new NxFieldGallery;
    const NxFieldData* data = first->getFieldData();
    const int index = bytes[0] % data->getNumFields();
    NxField* const field = data->getField(first.get(), index);
    NxField* const other = data->getField(second.get(), index);
    if (!field->set(VbString(fuzz::toText(bytes + 1, count - 1)))) {
        fuzz::check(field->isSame(*other), "a refused text changes nothing");
        return 0;
    }
    VbString text;
    field->get(text);
    fuzz::check(other->set(text), "its own text form is taken");
    fuzz::check(field->isSame(*other), "it is the same value");
    return 0;
}
