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

    /// The corners, in scene units.
    NxMFVec3f positions{this, "positions"};
    /// The direction that the surface faces at each corner, of unit length: none (then flat triangles are lit by their
    /// own normals) or one for each position.
    NxMFVec3f normals{this, "normals"};
    /// The place in the texture for each corner, from 0 to 1 across it, (0, 0) being the lower left: none or one for
    /// each position.
    NxMFVec2f textureCoordinates{this, "textureCoordinates"};
    /// Colours that replace the diffuse colour and the transparency of the material: none, one for all or one for each
    /// position.
    NxMFColorRGBA colors{this, "colors"};
    /// The positions in the order of drawing, counted from 0: three for each triangle (counter-clockwise as seen from
    /// outside), two for each line, one for each point. Empty for all positions in order.
    NxMFInt32 indices{this, "indices"};
    /// What the indices make.
    NxSFEnum primitive{this, "primitive", primitives(), TRIANGLES};

protected:
    ~NxMesh() override = default;

private:
    static const NxEnumeration& primitives();
};
