#pragma once

#include "scene/RandomValues.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <vector>

class NxField;
class NxMField;

/// Random writes to a scene: values, rows of lists, flags, names and children; the same ones for the same seed.
class RandomChanges {
public:
    RandomChanges(NxGroup& scene, unsigned int seed);

    /// One to four writes.
    void makeSome();
    /// Releases the nodes that nobody else holds, so that they are destroyed.
    void releaseNodes();

private:
    void makeOne();
    void changeField(NxField& field);
    void changeList(NxMField& list);
    void changeChildren();

    NxRef<NxGroup> m_scene;
    RandomValues m_random;
    /// All nodes that were ever in the scene.
    std::vector<NxRef<NxNode>> m_nodes;
};
