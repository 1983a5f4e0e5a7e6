// The checks of a scene and their mends: whatever the scene is, a mend is taken back to the bit.

#include "Fuzz.h"

#include "meridane/scene/check/NxSceneCheck.h"
#include "meridane/scene/check/NxSceneMend.h"
#include "meridane/scene/file/NxSceneReader.h"
#include "meridane/scene/file/NxSceneWriter.h"

#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    NxSceneReader reader(std::string(fuzz::toText(bytes, count)), "input");
    if (reader.run() != NxSceneReader::State::Done)
        return 0;
    const NxRef<NxGroup> scene = reader.takeScene();
    const std::string before = NxSceneWriter::toText(scene.get());
    NxSceneCheck check(scene);
    check.run();
    std::vector<NxSceneProblem> problems;
    check.reportAll([&](const NxSceneProblem& problem, std::span<const int> places) {
        fuzz::check(!problem.sentence().empty() && !places.empty(), "a problem has a sentence and a place");
        problems.push_back(problem);
        return true;
    });
    NxSceneMend mend;
    mend.apply(problems);
    const std::string after = NxSceneWriter::toText(scene.get());
    mend.undo();
    fuzz::check(NxSceneWriter::toText(scene.get()) == before, "a mend is taken back");
    mend.redo();
    fuzz::check(NxSceneWriter::toText(scene.get()) == after, "a mend is made again");
    return 0;
}
