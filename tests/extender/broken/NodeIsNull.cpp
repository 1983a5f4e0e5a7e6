#include "extender/broken/Broken.h"

#include "meridane/base/values/VbName.h"
#include "meridane/scene/nodes/NxNode.h"

namespace {

[[maybe_unused]] const NxType nothing
    = NxType::registerClass("BrokenNothing", NxNode::getClassTypeId(), []() -> NxTypedObject* { return nullptr; });

} // namespace

BROKEN_EXTENSION(Quiet<OrvExtension>)
