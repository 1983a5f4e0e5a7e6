#pragma once

#include "orvane/extender/OrvServices.h"

#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldContainer.h"

#include <type_traits>

namespace orv {

/// The selected node, if it is one of this class or of one derived from it; otherwise null. With a class of fields, the
/// selected field. It is kept alive until something else is selected.
template <typename Object>
[[nodiscard]] Object* selected()
{
    const OrvServices* const services = OrvServices::getInstance();
    if (services == nullptr)
        return nullptr;
    const auto asObject = [](auto* found) {
        const bool fits = found != nullptr && found->isOfType(Object::getClassTypeId());
        return fits ? static_cast<Object*>(found) : nullptr;
    };
    if constexpr (std::is_base_of_v<NxField, Object>)
        return asObject(services->getSelectedField());
    else
        return asObject(services->getSelectedNode());
}

/// Selects a node.
void select(NxFieldContainer& node);
/// Selects a field, so that its editor is shown, and its node if that isn't selected yet.
void select(NxField& field);

} // namespace orv
