#pragma once

#include "meridane/scene/fields/list/NxMFColorRGBA.h"
#include "meridane/scene/fields/list/NxMFInt32.h"
#include "meridane/scene/fields/list/NxMFVec2f.h"
#include "meridane/scene/fields/list/NxMFVec3f.h"
#include "meridane/scene/fields/list/NxMFVec4f.h"

#include <span>
#include <type_traits>

/// The lists of a scene that are sent as bytes.
namespace orvane {

/// The value type of a class of lists.
template <typename List>
using ListValue = typename decltype(std::declval<const List&>().getValues())::value_type;

/// Calls the action with the field, cast to its class, if it is a list of positions, directions, colours or indices,
/// whose values may have any bits. Else returns false without calling the action.
template <typename Action>
bool withPackableList(NxField& field, const Action& action)
{
    const auto tryAs = [&]<typename List>(List* list) {
        // So they can be copied as bytes.
        static_assert(std::is_trivially_copyable_v<ListValue<List>>);
        if (list != nullptr)
            action(*list);
        return list != nullptr;
    };
    return dynamic_cast<NxMField*>(&field) != nullptr
        && (tryAs(dynamic_cast<NxMFVec3f*>(&field)) || tryAs(dynamic_cast<NxMFVec2f*>(&field))
            || tryAs(dynamic_cast<NxMFVec4f*>(&field)) || tryAs(dynamic_cast<NxMFInt32*>(&field)));
}

} // namespace orvane
