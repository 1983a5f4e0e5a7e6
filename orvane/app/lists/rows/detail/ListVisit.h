#pragma once

#include "meridane/scene/fields/list/NxMFBool.h"
#include "meridane/scene/fields/list/NxMFColor.h"
#include "meridane/scene/fields/list/NxMFColorRGBA.h"
#include "meridane/scene/fields/list/NxMFDouble.h"
#include "meridane/scene/fields/list/NxMFEnum.h"
#include "meridane/scene/fields/list/NxMFFloat.h"
#include "meridane/scene/fields/list/NxMFInt32.h"
#include "meridane/scene/fields/list/NxMFMatrix.h"
#include "meridane/scene/fields/list/NxMFName.h"
#include "meridane/scene/fields/list/NxMFPlane.h"
#include "meridane/scene/fields/list/NxMFRotation.h"
#include "meridane/scene/fields/list/NxMFShort.h"
#include "meridane/scene/fields/list/NxMFString.h"
#include "meridane/scene/fields/list/NxMFUInt32.h"
#include "meridane/scene/fields/list/NxMFUShort.h"
#include "meridane/scene/fields/list/NxMFVec2f.h"
#include "meridane/scene/fields/list/NxMFVec2i32.h"
#include "meridane/scene/fields/list/NxMFVec2s.h"
#include "meridane/scene/fields/list/NxMFVec3f.h"
#include "meridane/scene/fields/list/NxMFVec4f.h"

#include <type_traits>

namespace orvane {

/// The type of the values of a list.
template <typename List>
using ValueOf = std::remove_cv_t<typename decltype(std::declval<List>().getValues())::element_type>;

/// Calls the action with the list as what it is, and returns its result; false for a class that isn't one of the
/// toolkit's nor derived from one. Colours are passed as the lists of vectors that they are.
template <typename Action>
bool visitList(NxMField& list, Action action)
{
    bool result = false;
    const auto visit = [&]<typename List>(std::type_identity<List>) {
        auto* const typed = dynamic_cast<List*>(&list);
        if (typed != nullptr)
            result = action(*typed);
        return typed != nullptr;
    };
    const auto visitAny = [&]<typename... Lists>(std::type_identity<Lists>... types) { (visit(types) || ...); };
    visitAny(std::type_identity<NxMFVec3f>(), std::type_identity<NxMFFloat>(), std::type_identity<NxMFInt32>(),
        std::type_identity<NxMFVec2f>(), std::type_identity<NxMFVec4f>(), std::type_identity<NxMFMatrix>(),
        std::type_identity<NxMFRotation>(), std::type_identity<NxMFString>(), std::type_identity<NxMFName>(),
        std::type_identity<NxMFBool>(), std::type_identity<NxMFEnum>(), std::type_identity<NxMFDouble>(),
        std::type_identity<NxMFPlane>(), std::type_identity<NxMFShort>(), std::type_identity<NxMFUShort>(),
        std::type_identity<NxMFUInt32>(), std::type_identity<NxMFVec2s>(), std::type_identity<NxMFVec2i32>());
    return result;
}

} // namespace orvane
