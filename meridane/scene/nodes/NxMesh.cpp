#include "meridane/scene/nodes/NxMesh.h"

NX_NODE_SOURCE(NxMesh, NxNode, "Mesh", "Triangles, lines or points with shared corners.")

const NxEnumeration& NxMesh::primitives()
{
    static const NxEnumeration names{{"TRIANGLES", TRIANGLES}, {"LINES", LINES}, {"POINTS", POINTS}};
    return names;
}
