// Comparing two scenes of a million small nodes, beside reading both.

#include "LargeScene.h"
#include "Timing.h"

#include "meridane/scene/compare/NxSceneComparison.h"
#include "meridane/scene/file/NxSceneReader.h"

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

/// Compares two texts of scenes, which have that many differences.
void measure(const char* name, const std::string& left, const std::string& right, std::size_t differences)
{
    const NxRef<NxGroup> leftScene = readScene(left);
    const NxRef<NxGroup> rightScene = readScene(right);
    bench::compare(
        name, 1.5, 5,
        [&] {
            return bench::seconds([&] {
                NxSceneComparison comparison(leftScene, rightScene);
                comparison.run();
                if (comparison.takeDifferences().list().size() != differences)
                    std::abort();
            });
        },
        [&] {
            NxRef<NxGroup> scenes[2];
            return bench::seconds([&] {
                scenes[0] = readScene(left);
                scenes[1] = readScene(right);
            });
        });
}

void replace(std::string& text, const std::string& before, const std::string& after)
{
    text.replace(text.find(before, text.size() / 2), before.size(), after);
}

} // namespace

int main()
{
    const std::string left = bench::sceneText(bench::largeSceneNodes);
    std::string changed = left;
    replace(changed, "value = 0.", "value = 1.");
    measure("comparison of 1,000,000 small nodes with one changed value", left, changed, 1);

    std::string shifted = left;
    const std::string first = "{\n        value = 0.1000\n    }\n    Complexity ";
    shifted.erase(shifted.find(first), first.size());
    replace(shifted, "Complexity {", "Complexity \"named\" {");
    measure("comparison of 1,000,000 small nodes with one removed and one renamed", left, shifted, 2);
    return 0;
}
