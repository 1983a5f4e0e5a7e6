#pragma once

#include "meridane/scene/fields/single/NxSFString.h"

/// A single text that names a file. The file need not exist.
class NxSFFilePathString : public NxSFString {
    NX_FIELD(NxSFFilePathString)

public:
    /// The facts of the field say that it is a path. `container` may be null.
    NxSFFilePathString(NxFieldContainer* container, const meridane::FieldDeclaration& declaration, Read value = {})
        : NxSFString(container, declaration.ofFile(), value)
    {
    }
};
