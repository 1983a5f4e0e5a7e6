#pragma once

#include "orvane/sdk/NodeEditor.h"

#include "meridane/scene/nodes/NxMaterial.h"

namespace nodes {

/// A sphere of the material, and all of its fields.
class MaterialEditor final : public orv::NodeEditor<NxMaterial> {
    void build() override;
};

} // namespace nodes
