// Opening a scene of a million small nodes without a window, and what its nodes take in memory.

#include "Figure.h"
#include "LargeScene.h"
#include "Timing.h"
#include "Tokens.h"

#include "meridane/base/Files.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/fields/NxFieldData.h"
#include "meridane/scene/file/NxSceneReader.h"
#include "meridane/scene/nodes/NxComplexity.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include <malloc.h>

namespace {

std::string readFile(const std::string& name)
{
    constexpr std::size_t chunk = std::size_t{1} << 20;
    meridane::FileReader file;
    std::string bytes;
    bool atEnd = false;
    if (file.open(name))
        std::abort();
    while (!atEnd) {
        if (file.read(bytes, chunk, atEnd))
            std::abort();
    }
    return bytes;
}

NxRef<NxGroup> readScene(const std::string& name)
{
    NxSceneReader reader(readFile(name), name);
    if (reader.run() != NxSceneReader::State::Done)
        std::abort();
    return reader.takeScene();
}

void measureOpening(const std::string& name)
{
    constexpr int rounds = 9;
    bench::compare(
        "scene of 1,000,000 small nodes: open", 3, rounds,
        [&name] {
            NxRef<NxGroup> scene;
            return bench::seconds([&] { scene = readScene(name); });
        },
        [&name] {
            return bench::seconds([&name] {
                if (!bench::tokenise(readFile(name)).valid)
                    std::abort();
            });
        });
}

/// A scene in which each field of the first node and each node after it is of a kind of its own that no class has.
std::string textOfUnknownKinds(int count)
{
    std::string text = "#mrd 1.0\nGroup {\n";
    for (int i = 0; i < count; ++i)
        text += "unknown" + std::to_string(i) + " = " + std::to_string(i) + '\n';
    text += "}\n";
    for (int i = 0; i < count; ++i)
        text += "Class" + std::to_string(i) + " as \"a\" { }\n";
    return text;
}

void readText(const std::string& text)
{
    NxSceneReader reader(text, "scene.mrd");
    if (reader.run() != NxSceneReader::State::Done)
        std::abort();
}

// Both read as many nodes. In quadratic time the one scene takes ten times as long as the ten small ones.
void measureUnknownKinds()
{
    constexpr int scenes = 10;
    const std::string small = textOfUnknownKinds(10'000);
    const std::string large = textOfUnknownKinds(scenes * 10'000);
    bench::compare(
        "scene of 200,000 unknown kinds: open, against ten of a tenth", 3, 9,
        [&large] { return bench::seconds([&large] { readText(large); }); },
        [&small] {
            return bench::seconds([&small] {
                for (int i = 0; i < scenes; ++i)
                    readText(small);
            });
        });
}

/// The memory of the fields of a node alone: the size of each with the memory of its value.
double bytesOfFields(const NxFieldContainer& node)
{
    auto& container = const_cast<NxFieldContainer&>(node);
    const NxFieldData* const data = container.getFieldData();
    std::size_t bytes = 0;
    for (int i = 0; i < data->getNumFields(); ++i) {
        // Fields follow each other; the last one extends to the end of the node.
        const auto* const field = reinterpret_cast<const char*>(data->getField(&container, i));
        const auto* const end = i + 1 < data->getNumFields()
            ? reinterpret_cast<const char*>(data->getField(&container, i + 1))
            : reinterpret_cast<const char*>(&node) + sizeof(NxComplexity);
        bytes += static_cast<std::size_t>(end - field);
    }
    return static_cast<double>(bytes);
}

std::size_t allocatedBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void measureMemory(const std::string& name)
{
    const std::size_t before = allocatedBytes();
    const NxRef<NxGroup> scene = readScene(name);
    const auto bytes = static_cast<double>(allocatedBytes() - before);
    const NxNode* const node = scene->getChildren().front()->getChildren().front();
    bench::report({"scene of 1,000,000 small nodes: memory a node", "bytes", bytes / bench::largeSceneNodes,
        bytesOfFields(*node), 1.5});
}

} // namespace

int main()
{
    const std::string name = bench::sceneFile(bench::largeSceneNodes);
    measureMemory(name);
    measureOpening(name);
    measureUnknownKinds();
    std::filesystem::remove(name);
    return 0;
}
