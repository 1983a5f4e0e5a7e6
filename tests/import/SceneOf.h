#pragma once

#include "meridane/scene/file/NxSceneReader.h"

#include <string>

/// A scene from its text; null with the reason in `error` for a text that is none.
inline NxRef<NxGroup> sceneOf(const std::string& text, std::string& error)
{
    NxSceneReader reader(text, "scene");
    reader.run();
    error = reader.failure().text();
    return reader.takeScene();
}
