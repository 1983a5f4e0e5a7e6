#include "NamedScene.h"

#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxTransform.h"

#include <string>

NxRef<NxGroup> bench::makeNamedScene()
{
    constexpr int nodes = 1'000'000;
    constexpr int nodesOfGroup = 1000;
    NxRef<NxGroup> scene(new NxGroup);
    NxGroup* group = nullptr;
    for (int i = 0; i < nodes; ++i) {
        NxNode* node = nullptr;
        if (i % nodesOfGroup == 0) {
            group = new NxTransform;
            scene->addChild(group);
            node = group;
        } else {
            node = new NxMaterial;
            group->addChild(node);
        }
        node->setName(("Left wheel part " + std::to_string(i)).c_str());
    }
    return scene;
}
