#pragma once

#include "meridane/scene/NxMFFloat.h"
#include "meridane/scene/NxNode.h"
#include "meridane/scene/NxRef.h"
#include "meridane/scene/NxSFFloat.h"
#include "meridane/scene/NxSFString.h"

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
