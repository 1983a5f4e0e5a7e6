#pragma once

#include "orvane/sdk/NodeEditor.h"

#include "meridane/scene/nodes/NxMesh.h"

namespace nodes {

/// What a mesh consists of, the box around it, which of its lists are filled, and what is wrong with it.
class MeshEditor final : public orv::NodeEditor<NxMesh> {
    void build() override;
};

} // namespace nodes
