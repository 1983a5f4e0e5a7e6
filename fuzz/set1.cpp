// `set1` of every list class; the first byte chooses the list. A row that was taken survives its own text form, and
// the rows beside it stay as they were.

#include "Fuzz.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/fields/NxMField.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxFieldGallery.h"

#include <vector>

namespace {

std::vector<NxMField*> listsOf(NxFieldGallery& node)
{
    std::vector<NxMField*> lists;
    const NxFieldData* data = node.getFieldData();
    for (int index = 0; index < data->getNumFields(); ++index) {
        if (auto* list = dynamic_cast<NxMField*>(data->getField(&node, index))) {
            list->deleteValues(0, -1);
            list->insertSpace(0, 3);
            lists.push_back(list);
        }
    }
    return lists;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    if (count == 0)
        return 0;
    const NxRef<NxFieldGallery> first = new NxFieldGallery;
    const NxRef<NxFieldGallery> second = new NxFieldGallery;
    const std::vector<NxMField*> lists = listsOf(*first);
    NxMField* const list = lists[bytes[0] % lists.size()];
    NxMField* const other = listsOf(*second)[bytes[0] % lists.size()];
    if (!list->set1(1, VbString(fuzz::toText(bytes + 1, count - 1)))) {
        fuzz::check(list->isSame(*other), "a refused text changes nothing");
        return 0;
    }
    VbString text;
    list->get1(1, text);
    fuzz::check(other->set1(1, text), "its own text form is taken");
    fuzz::check(list->isSame(*other), "it is the same list");
    return 0;
}
