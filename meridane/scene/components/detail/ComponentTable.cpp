// The field classes whose values are numbers.

#include "meridane/base/values/VbName.h"
#include "meridane/scene/components/FieldComponents.h"
#include "meridane/scene/components/detail/ListComponents.h"
#include "meridane/scene/components/detail/SingleComponents.h"
#include "meridane/scene/fields/list/NxMFBool.h"
#include "meridane/scene/fields/list/NxMFColor.h"
#include "meridane/scene/fields/list/NxMFColorRGBA.h"
#include "meridane/scene/fields/list/NxMFDouble.h"
#include "meridane/scene/fields/list/NxMFEnum.h"
#include "meridane/scene/fields/list/NxMFFloat.h"
#include "meridane/scene/fields/list/NxMFInt32.h"
#include "meridane/scene/fields/list/NxMFMatrix.h"
#include "meridane/scene/fields/list/NxMFPlane.h"
#include "meridane/scene/fields/list/NxMFRotation.h"
#include "meridane/scene/fields/list/NxMFShort.h"
#include "meridane/scene/fields/list/NxMFUInt32.h"
#include "meridane/scene/fields/list/NxMFUShort.h"
#include "meridane/scene/fields/list/NxMFVec2f.h"
#include "meridane/scene/fields/list/NxMFVec2i32.h"
#include "meridane/scene/fields/list/NxMFVec2s.h"
#include "meridane/scene/fields/list/NxMFVec3f.h"
#include "meridane/scene/fields/list/NxMFVec4f.h"
#include "meridane/scene/fields/single/NxSFBitMask.h"
#include "meridane/scene/fields/single/NxSFBool.h"
#include "meridane/scene/fields/single/NxSFBox2f.h"
#include "meridane/scene/fields/single/NxSFBox3s.h"
#include "meridane/scene/fields/single/NxSFColor.h"
#include "meridane/scene/fields/single/NxSFColorRGBA.h"
#include "meridane/scene/fields/single/NxSFDouble.h"
#include "meridane/scene/fields/single/NxSFEnum.h"
#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/fields/single/NxSFInt32.h"
#include "meridane/scene/fields/single/NxSFMatrix.h"
#include "meridane/scene/fields/single/NxSFPlane.h"
#include "meridane/scene/fields/single/NxSFRotation.h"
#include "meridane/scene/fields/single/NxSFShort.h"
#include "meridane/scene/fields/single/NxSFTime.h"
#include "meridane/scene/fields/single/NxSFUInt32.h"
#include "meridane/scene/fields/single/NxSFUShort.h"
#include "meridane/scene/fields/single/NxSFVec2f.h"
#include "meridane/scene/fields/single/NxSFVec2i32.h"
#include "meridane/scene/fields/single/NxSFVec2s.h"
#include "meridane/scene/fields/single/NxSFVec3f.h"
#include "meridane/scene/fields/single/NxSFVec3s.h"
#include "meridane/scene/fields/single/NxSFVec4f.h"

#include <array>

namespace meridane {
namespace {

using Names = std::span<const std::string_view>;

constexpr std::array<std::string_view, 4> coordinates{"x", "y", "z", "w"};
constexpr std::array<std::string_view, 4> channels{"r", "g", "b", "a"};
constexpr std::array<std::string_view, 4> rotationNames{"x", "y", "z", "angle"};
constexpr std::array<std::string_view, 4> planeNames{"x", "y", "z", "distance"};
constexpr std::array<std::string_view, 16> matrixNames{
    "m00", "m01", "m02", "m03", "m10", "m11", "m12", "m13", "m20", "m21", "m22", "m23", "m30", "m31", "m32", "m33"};
constexpr std::array<std::string_view, 4> boxNames2{"min x", "min y", "max x", "max y"};
constexpr std::array<std::string_view, 6> boxNames3{"min x", "min y", "min z", "max x", "max y", "max z"};

template <typename Value, typename Format>
SingleComponents<Value, Format> kindOf(const SingleField<Value, Format>* field);
template <typename Value, typename Format>
ListComponents<Value, Format> kindOf(const ListField<Value, Format>* field);

struct Entry {
    NxType fieldClass;
    const FieldComponents* components;
};

template <typename Field>
Entry entryOf(Names names = {})
{
    static const decltype(kindOf(static_cast<const Field*>(nullptr))) components(names);
    return {Field::getClassTypeId(), &components};
}

const auto& entries()
{
    static const std::array all{
        entryOf<NxSFFloat>(),
        entryOf<NxSFDouble>(),
        entryOf<NxSFTime>(),
        entryOf<NxSFInt32>(),
        entryOf<NxSFUInt32>(),
        entryOf<NxSFShort>(),
        entryOf<NxSFUShort>(),
        entryOf<NxSFBool>(),
        entryOf<NxSFEnum>(),
        entryOf<NxSFBitMask>(),
        entryOf<NxSFColor>(Names(channels).first(3)),
        entryOf<NxSFColorRGBA>(channels),
        entryOf<NxSFVec2f>(Names(coordinates).first(2)),
        entryOf<NxSFVec2s>(Names(coordinates).first(2)),
        entryOf<NxSFVec2i32>(Names(coordinates).first(2)),
        entryOf<NxSFVec3f>(Names(coordinates).first(3)),
        entryOf<NxSFVec3s>(Names(coordinates).first(3)),
        entryOf<NxSFVec4f>(coordinates),
        entryOf<NxSFRotation>(rotationNames),
        entryOf<NxSFPlane>(planeNames),
        entryOf<NxSFMatrix>(matrixNames),
        entryOf<NxSFBox2f>(boxNames2),
        entryOf<NxSFBox3s>(boxNames3),
        entryOf<NxMFFloat>(),
        entryOf<NxMFDouble>(),
        entryOf<NxMFInt32>(),
        entryOf<NxMFUInt32>(),
        entryOf<NxMFShort>(),
        entryOf<NxMFUShort>(),
        entryOf<NxMFBool>(),
        entryOf<NxMFEnum>(),
        entryOf<NxMFColor>(Names(channels).first(3)),
        entryOf<NxMFColorRGBA>(channels),
        entryOf<NxMFVec2f>(Names(coordinates).first(2)),
        entryOf<NxMFVec2s>(Names(coordinates).first(2)),
        entryOf<NxMFVec2i32>(Names(coordinates).first(2)),
        entryOf<NxMFVec3f>(Names(coordinates).first(3)),
        entryOf<NxMFVec4f>(coordinates),
        entryOf<NxMFRotation>(rotationNames),
        entryOf<NxMFPlane>(planeNames),
        entryOf<NxMFMatrix>(matrixNames),
    };
    return all;
}

} // namespace

const FieldComponents* FieldComponents::of(const NxField& field)
{
    return of(field.getTypeId());
}

const FieldComponents* FieldComponents::of(NxType fieldClass)
{
    for (; !fieldClass.isBad(); fieldClass = fieldClass.getParent()) {
        const auto found = std::ranges::find(entries(), fieldClass, &Entry::fieldClass);
        if (found != entries().end())
            return found->components;
    }
    return nullptr;
}

} // namespace meridane
