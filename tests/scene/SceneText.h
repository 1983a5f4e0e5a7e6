#pragma once

#include "meridane/scene/file/NxSceneReader.h"
#include "meridane/scene/file/NxSceneWriter.h"

#include <string>
#include <string_view>

/// Scenes as texts, for tests.
namespace SceneText {

/// A scene file with these statements behind its first line, so that they begin in line 2.
inline std::string file(std::string_view statements)
{
    return "#mrd 1.0\n" + std::string(statements);
}

/// Reads a whole scene; null if it was refused.
inline NxRef<NxGroup> read(std::string text)
{
    NxSceneReader reader(std::move(text), "test.mrd");
    reader.run();
    return reader.takeScene();
}

inline NxReadFailure failure(std::string text)
{
    NxSceneReader reader(std::move(text), "test.mrd");
    reader.run();
    return reader.failure();
}

/// What a scene file becomes by reading and writing; empty if it was refused.
inline std::string rewrite(std::string text)
{
    const NxRef<NxGroup> scene = read(std::move(text));
    return scene ? NxSceneWriter::toText(scene.get()) : std::string();
}

} // namespace SceneText
