#pragma once

#include "meridane/scene/fields/single/NxSFEnum.h"
#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/nodes/NxNode.h"

/// The detail with which the surfaces and textures that follow in the group are drawn.
class NxComplexity : public NxNode {
    NX_NODE(NxComplexity)

public:
    /// What the complexity is measured against.
    enum Type {
        OBJECT_SPACE = 0, ///< the object, at any distance
        SCREEN_SPACE = 1, ///< the picture: distant objects get less detail
        BOUNDING_BOX = 2, ///< only the boxes around the objects are drawn
    };

    /// What `value` is measured against.
    NxSFEnum type{this, "type", types(), OBJECT_SPACE};
    /// The detail, from 0 (coarse and fast) to 1 (fine and slow).
    NxSFFloat value{this, "value", 0.5F};
    /// The quality of textures, from 0 (not drawn) to 1 (all kinds of smoothing).
    NxSFFloat textureQuality{this, "textureQuality", 0.5F};

protected:
    ~NxComplexity() override = default;

private:
    static const NxEnumeration& types();
};
