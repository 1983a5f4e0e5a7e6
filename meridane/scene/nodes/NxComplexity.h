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

    NxSFEnum type{this,
        {"type",
            "What value is measured against: the object at any distance, the picture, or neither, and then only boxes "
            "are drawn."},
        types(), OBJECT_SPACE};
    NxSFFloat value{this,
        {"value", "The detail of surfaces, from coarse and fast (0) to fine and slow (1).", meridane::range(0, 1)},
        0.5F};
    NxSFFloat textureQuality{this,
        {"textureQuality", "The quality of textures, from none drawn (0) to all kinds of smoothing (1).",
            meridane::range(0, 1)},
        0.5F};

protected:
    ~NxComplexity() override = default;

private:
    static const NxEnumeration& types();
};
