#pragma once

#include "meridane/scene/file/NxSceneReader.h"

#include <string>

/// Reads a scene from its text. Returns null, with the reason in `error`, if the text isn't a scene.
inline NxRef<NxGroup> sceneOf(const std::string& text, std::string& error)
{
    NxSceneReader reader(text, "scene");
    reader.run();
    error = reader.failure().text();
    return reader.takeScene();
}
