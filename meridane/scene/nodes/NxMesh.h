#pragma once

#include "meridane/scene/fields/list/NxMFColorRGBA.h"
#include "meridane/scene/fields/list/NxMFInt32.h"
#include "meridane/scene/fields/list/NxMFVec2f.h"
#include "meridane/scene/fields/list/NxMFVec3f.h"
#include "meridane/scene/fields/single/NxSFEnum.h"
#include "meridane/scene/nodes/NxNode.h"

/// Triangles, lines or points with shared corners. It is drawn with the material, texture and complexity that precede
/// it in its group or further up.
class NxMesh : public NxNode {
    NX_NODE(NxMesh)

public:
    /// What a mesh consists of.
    enum Primitive {
        TRIANGLES = 0, ///< three indices each
        LINES = 1, ///< two indices each
        POINTS = 2, ///< one index each
    };

    NxMFVec3f positions{this, {"positions", "The corners.", NxUnit::Metres}};
    NxMFVec3f normals{this,
        {"normals",
            "The direction of unit length that the surface faces at each corner: one for each position, or none for "
            "flat triangles that are lit by their own normals.",
            meridane::softRange(-1, 1)}};
    NxMFVec2f textureCoordinates{this,
        {"textureCoordinates",
            "The place in the texture for each corner, from 0 to 1 across it with (0, 0) at the lower left: one for "
            "each position, or none."}};
    NxMFColorRGBA colors{this,
        {"colors",
            "Colours that replace the diffuse colour and the transparency of the material: one for each position, one "
            "for all, or none.",
            meridane::softRange(0, 1)}};
    NxMFInt32 indices{this,
        {"indices",
            "The positions in the order of drawing, counted from 0: three for each triangle (counter-clockwise as seen "
            "from outside), two for each line, one for each point, or none at all for all positions in order.",
            meridane::atLeast(0)}};
    NxSFEnum primitive{this, {"primitive", "What the indices make."}, primitives(), TRIANGLES};

protected:
    ~NxMesh() override = default;

private:
    static const NxEnumeration& primitives();
};
