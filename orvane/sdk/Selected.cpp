#include "orvane/sdk/Selected.h"

namespace orv {

void select(NxFieldContainer& node)
{
    if (OrvServices* const services = OrvServices::getInstance())
        services->selectNode(&node);
}

void select(NxField& field)
{
    OrvServices* const services = OrvServices::getInstance();
    if (services == nullptr)
        return;
    // A node that is selected again would be shown again by the docks, which would end an edit.
    if (field.getContainer() == nullptr || field.getContainer() == services->getSelectedNode())
        services->selectField(&field);
    else
        services->select(field.getContainer(), &field);
}

} // namespace orv
