#include "orvane/app/tree/facts/IgnoredFields.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/nodes/NxNode.h"

#include <algorithm>

bool orvane::hasIgnoredField(NxNode& node)
{
    const std::vector<NxField*> fields = node.getFields();
    return std::any_of(fields.begin(), fields.end(), [](const NxField* field) { return field->isIgnored(); });
}
