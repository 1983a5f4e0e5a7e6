#pragma once

#include "meridane/scene/fields/single/NxSFEnum.h"

/// A single set of bits, each with a name of the enumeration. Bits without a name can be held as well.
class NxSFBitMask : public NxSFEnum {
    NX_FIELD(NxSFBitMask)

public:
    /// The enumeration must outlive the field.
    NxSFBitMask(NxFieldContainer* container, const meridane::FieldDeclaration& declaration,
        const NxEnumeration& enumeration, int value = 0)
        : NxSFEnum(container, declaration, enumeration, value, meridane::EnumFormat::Kind::Mask)
    {
    }
};
