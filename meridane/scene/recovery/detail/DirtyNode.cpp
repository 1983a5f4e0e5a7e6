#include "meridane/scene/recovery/detail/DirtyNode.h"

#include <algorithm>

namespace meridane {

DirtyField& DirtyNode::field(int index)
{
    const auto found = std::ranges::find(fields, index, &DirtyField::index);
    if (found != fields.end())
        return *found;
    fields.push_back({});
    fields.back().index = index;
    return fields.back();
}

} // namespace meridane
