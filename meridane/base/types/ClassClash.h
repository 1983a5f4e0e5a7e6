#pragma once

#include "meridane/base/values/VbName.h"

#include <vector>

namespace meridane {

/// A class that `NxType::registerClass` refused, since another class has its name.
struct ClassClash {
    VbName name; ///< the name of both classes
    /// An address in the code that registered the class of that name.
    const void* holder = nullptr;
    /// An address in the code whose class was refused.
    const void* refused = nullptr;
};

/// Notes a clash for `takeClassClashes`. At most 100 are kept until they are taken; the further ones are dropped. Any
/// thread.
void noteClassClash(const ClassClash& clash);
/// The clashes since the last call, the oldest first. For whoever loads libraries: their classes are registered
/// meanwhile. Any thread.
[[nodiscard]] std::vector<ClassClash> takeClassClashes();

} // namespace meridane
