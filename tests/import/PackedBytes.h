#pragma once

#include "import/SceneOf.h"

#include "orvane/transfer/PackedScene.h"
#include "orvane/transfer/PackedSceneReader.h"

#include <string>
#include <utility>
#include <vector>

/// The bytes of a packed scene, whose long lists go with them; empty for a scene that can't be packed.
inline std::string pack(NxGroup& scene)
{
    const orvane::PackedScene packed(scene);
    std::string bytes;
    if (packed.failure().empty()) {
        for (const std::string_view portion : packed.portions())
            bytes += portion;
    }
    return bytes;
}

/// A scene from its bytes; null with the reason in `failure` for bytes that are none.
inline NxRef<NxGroup> unpack(const std::string& bytes, std::string& failure)
{
    orvane::PackedParts parts;
    parts.take(bytes);
    orvane::PackedSceneReader reader(std::move(parts));
    reader.run();
    failure = reader.failure();
    return reader.takeScene();
}

/// That many values, all different.
template <typename Value>
std::vector<Value> numbers(int count)
{
    std::vector<Value> values(static_cast<std::size_t>(count));
    int number = 0;
    for (Value& value : values) {
        for (std::size_t component = 0; component < Value::count; ++component)
            value[component] = static_cast<typename Value::Component>(++number) / 7;
    }
    return values;
}
