#pragma once

#include "meridane/scene/fields/SingleField.h"
#include "meridane/scene/text/detail/EnumFormat.h"

extern template class meridane::SingleField<int, meridane::EnumFormat>;

/// A single value of an enumeration. A value without a name can be held as well.
class NxSFEnum : public meridane::SingleField<int, meridane::EnumFormat> {
    NX_FIELD(NxSFEnum)

public:
    /// The enumeration must outlive the field.
    NxSFEnum(NxFieldContainer* container, const meridane::FieldDeclaration& declaration,
        const NxEnumeration& enumeration, int value = 0)
        : NxSFEnum(container, declaration, enumeration, value, meridane::EnumFormat::Kind::Value)
    {
    }

    using SingleField::setValue;
    /// Takes the value of a name. A name that the enumeration doesn't have changes nothing.
    void setValue(const VbName& name);

    /// Hands out the enumeration in its order: arrays of `count` values and names, which belong to it and are not to
    /// be written.
    void getEnums(int& count, int*& values, VbName*& names) const;
    /// Gives the value of an enumeration name. For a name that doesn't exist `value` stays and the result is false.
    virtual bool enumValueByName(const VbName& name, int& value) const;

protected:
    /// For a derived class whose value is written in another form, such as a set of bits.
    NxSFEnum(NxFieldContainer* container, const meridane::FieldDeclaration& declaration,
        const NxEnumeration& enumeration, int value, meridane::EnumFormat::Kind kind)
        : SingleField(container, declaration, value, meridane::EnumFormat(enumeration, kind))
    {
    }
};
