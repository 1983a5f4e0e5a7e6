#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/fields/list/NxMFFloat.h"
#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/fields/single/NxSFString.h"
#include "meridane/scene/nodes/NxNode.h"

/// A node with three fields.
class ProbeNode : public NxNode {
    NX_NODE(ProbeNode)

public:
    NxSFFloat size{this, "size", 1.5F};
    NxSFString title{this, "title", "untitled"};
    NxMFFloat weights{this, "weights", {1, 2, 3}};
};

/// A node with one more field, which makes another node when it is made itself.
class ExtendedProbeNode : public ProbeNode {
    NX_NODE(ExtendedProbeNode)

public:
    NxSFFloat depth{this, "depth", -1};
    NxRef<ProbeNode> inner{new ProbeNode};
    NxSFFloat last{this, "last"};
};
