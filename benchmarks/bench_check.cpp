// Reading and checking a scene of a million nodes, beside reading it.

#include "LargeScene.h"
#include "Timing.h"

#include "meridane/scene/check/NxSceneCheck.h"
#include "meridane/scene/file/NxSceneReader.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

NxRef<NxGroup> readScene(const std::string& text)
{
    NxSceneReader reader(text, "scene.mrd");
    if (reader.run() != NxSceneReader::State::Done)
        std::abort();
    return reader.takeScene();
}

/// A scene of named parts, each a transform with a material and a mesh, a thousand in a group; without problems.
std::string partsText(int nodes)
{
    constexpr int nodesOfPart = 3;
    constexpr int partsInGroup = 1000;
    std::string text = "#mrd 1.0\n";
    for (int part = 0; part < nodes / nodesOfPart; ++part) {
        if (part % partsInGroup == 0)
            text += (part == 0 ? "Group \"assembly " : "}\nGroup \"assembly ") + std::to_string(part) + "\" {\n";
        text += "Transform \"part " + std::to_string(part) + "\" { translation = " + std::to_string(part)
            + " 0 0; Material { shininess = 0.5 } Mesh { positions = [0 0 0, 1 0 0, 0 1 0, 0 0 1]; indices = [0, 1, 2, "
              "0, 1, 3] } }\n";
    }
    return text + "}\n";
}

/// The longest slice of a check that works in slices of 8 ms, in milliseconds.
void reportLongestSlice(const char* name, const std::string& text)
{
    constexpr std::chrono::milliseconds slice(8);
    const NxRef<NxGroup> scene = readScene(text);
    NxSceneCheck check(scene);
    double longest = 0;
    bool goesOn = true;
    while (goesOn) {
        // The time of this process alone, since other programs may run between two looks at the clock.
        const double begin = bench::processorTime();
        goesOn = check.step(slice) == NxSceneCheck::State::Working;
        longest = std::max(longest, bench::processorTime() - begin);
    }
    std::printf("longest slice of 8 ms, %s: %.1f ms\n", name, 1000 * longest);
}

void measure(const char* name, const std::string& text, std::size_t warnings)
{
    bench::compare(
        std::string("reading and checking 1,000,000 nodes, ") + name, 2, 5,
        [&] {
            NxRef<NxGroup> scene;
            return bench::seconds([&] {
                scene = readScene(text);
                NxSceneCheck check(scene);
                check.run();
                if (check.count(NxSeverity::Warning) != warnings)
                    std::abort();
            });
        },
        [&] {
            NxRef<NxGroup> scene;
            return bench::seconds([&] { scene = readScene(text); });
        });
    reportLongestSlice(name, text);
}

} // namespace

int main()
{
    measure("named parts", partsText(bench::largeSceneNodes), 0);
    // Complexities that apply to nothing; the 21st problem has all but the first 20.
    measure("small nodes with one problem each", bench::sceneText(bench::largeSceneNodes), 21);
    return 0;
}
