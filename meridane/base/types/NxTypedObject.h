#pragma once

#include "meridane/base/types/NxType.h"

/// The root of all objects whose class is known at run time.
class NxTypedObject {
public:
    NxTypedObject(const NxTypedObject&) = delete;
    NxTypedObject& operator=(const NxTypedObject&) = delete;

    /// The object's own class.
    [[nodiscard]] virtual NxType getTypeId() const = 0;
    virtual ~NxTypedObject();

    /// True when the object's class is `type` or derives from it.
    [[nodiscard]] bool isOfType(const NxType& type) const { return getTypeId().isDerivedFrom(type); }

    /// The run-time type of the root, an abstract one.
    [[nodiscard]] static NxType getClassTypeId();

protected:
    NxTypedObject() = default;
};
