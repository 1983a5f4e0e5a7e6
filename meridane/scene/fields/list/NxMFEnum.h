#pragma once

#include "meridane/scene/fields/ListField.h"
#include "meridane/scene/text/detail/EnumFormat.h"

extern template class meridane::ListField<int, meridane::EnumFormat>;

/// A list of values of an enumeration. Values without a name can be held as well.
class NxMFEnum : public meridane::ListField<int, meridane::EnumFormat> {
    NX_FIELD(NxMFEnum)

public:
    /// The enumeration must outlive the field.
    NxMFEnum(NxFieldContainer* container, const meridane::FieldDeclaration& declaration,
        const NxEnumeration& enumeration, std::vector<int> values = {})
        : ListField(container, declaration, std::move(values),
            meridane::EnumFormat(enumeration, meridane::EnumFormat::Kind::Value))
    {
    }

    /// Hands out the enumeration in its order: arrays of `count` values and names, which belong to it and are not to
    /// be written.
    void getEnums(int& count, int*& values, VbName*& names) const;
};
