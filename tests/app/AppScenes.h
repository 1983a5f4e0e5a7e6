#pragma once

#include "meridane/base/NxDelayQueue.h"
#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/file/NxSceneReader.h"
#include "meridane/scene/file/NxSceneWriter.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <string>

/// Scenes and files for the tests of the application.
namespace AppScenes {

/// Two top nodes: a group "robot" that holds the meshes "arm", "hand" and one without a name, and a light "sun".
inline const char* const robotText = "#mrd 1.0\n"
                                     "Group \"robot\" {\n  Mesh \"arm\" {}\n  Mesh \"hand\" {}\n  Mesh {}\n}\n"
                                     "PointLight \"sun\" {}\n";

inline NxRef<NxGroup> read(const char* text)
{
    NxSceneReader reader(text, "test.mrd");
    reader.run();
    return reader.takeScene();
}

inline NxRef<NxGroup> robot()
{
    return read(robotText);
}

/// A group that holds a group with that many nodes.
inline NxRef<NxGroup> wide(int count)
{
    NxRef<NxGroup> scene(new NxGroup);
    NxRef<NxGroup> group(new NxGroup);
    scene->addChild(group.get());
    for (int i = 0; i < count; ++i)
        group->addChild(new NxGroup);
    return scene;
}

/// Runs the sensors that wait.
inline void runSensors()
{
    while (NxDelayQueue::getDefault().process()) { }
}

} // namespace AppScenes
