// Path expressions of the command line on a scene with awkward names: a path that leads somewhere is written as one
// that leads to the same place.

#include "Fuzz.h"

#include "meridane/scene/NxScenePath.h"
#include "meridane/scene/NxSceneReader.h"

#include <string>

namespace {

NxGroup* sampleScene()
{
    static const NxRef<NxGroup> scene = [] {
        NxSceneReader reader("#mrd 1.0\n"
                             "Transform \"robot\" {\n"
                             "  Transform \"arm\" { Material { } Mesh { } Material { } }\n"
                             "  Transform \"leg\" { }\n  Transform \"leg\" { }\n"
                             "  Material \"red / blue\" { }\n  Material \"quote \\\" line\\n\" { }\n"
                             "  Material \"Mesh[0]\" { }\n  Material \"a.b\" { }\n  Mesh { }\n}\n"
                             "Widget \"w\" { unknown = 1 }\nWidget { }\n",
            "sample");
        reader.run();
        return reader.takeScene();
    }();
    return scene.get();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    NxGroup* const scene = sampleScene();
    fuzz::check(scene != nullptr, "the sample scene is read");
    const NxScenePath::Target target = NxScenePath::find(scene, fuzz::toText(bytes, count));
    if (!target.error.empty()) {
        fuzz::check(target.nodes.empty() && target.field == nullptr, "a refused path leads nowhere");
        return 0;
    }
    const std::string text = target.field == nullptr ? NxScenePath::toText(scene, target.nodes)
                                                     : NxScenePath::toText(scene, target.nodes, target.field);
    const NxScenePath::Target again = NxScenePath::find(scene, text);
    fuzz::check(again.error.empty(), "its path is a path");
    fuzz::check(again.nodes == target.nodes && again.field == target.field, "it leads to the same place");
    return 0;
}
