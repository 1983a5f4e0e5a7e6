#pragma once

/// \file
/// Everything that a plug-in needs, in one header. docs/plugins.md walks through a plug-in that uses it.

#include "orvane/sdk/Binding.h" // IWYU pragma: export
#include "orvane/sdk/Dock.h" // IWYU pragma: export
#include "orvane/sdk/Edit.h" // IWYU pragma: export
#include "orvane/sdk/FieldEditor.h" // IWYU pragma: export
#include "orvane/sdk/Fields.h" // IWYU pragma: export
#include "orvane/sdk/NodeEditor.h" // IWYU pragma: export
#include "orvane/sdk/Plugin.h" // IWYU pragma: export
#include "orvane/sdk/Scene.h" // IWYU pragma: export
#include "orvane/sdk/Selected.h" // IWYU pragma: export
#include "orvane/sdk/ToolBar.h" // IWYU pragma: export

#include "meridane/base/values/VbName.h" // IWYU pragma: export
#include "meridane/scene/fields/single/NxSFBool.h" // IWYU pragma: export
#include "meridane/scene/fields/single/NxSFColor.h" // IWYU pragma: export
#include "meridane/scene/fields/single/NxSFDouble.h" // IWYU pragma: export
#include "meridane/scene/fields/single/NxSFFloat.h" // IWYU pragma: export
#include "meridane/scene/fields/single/NxSFInt32.h" // IWYU pragma: export
#include "meridane/scene/fields/single/NxSFString.h" // IWYU pragma: export
#include "meridane/scene/fields/single/NxSFVec3f.h" // IWYU pragma: export
#include "meridane/scene/nodes/NxGroup.h" // IWYU pragma: export
#include "meridane/scene/nodes/NxTransform.h" // IWYU pragma: export
