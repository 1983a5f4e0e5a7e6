// Path expressions of the command line on a scene with awkward names: a path that leads somewhere is written as one
// that leads to the same place, and PATH=TEXT is split into both again and sets the field or leaves the scene alone.

#include "Fuzz.h"

#include "orvane/app/command_line/CommandLine.h"
#include "orvane/app/command_line/FieldAccess.h"

#include "meridane/scene/file/NxScenePath.h"
#include "meridane/scene/file/NxSceneReader.h"
#include "meridane/scene/file/NxSceneWriter.h"

#include <string>

namespace {

NxRef<NxGroup> makeScene()
{
    NxSceneReader reader("#mrd 1.0\n"
                         "Transform \"robot\" {\n"
                         "  Transform \"arm\" { Material { } Mesh { } Material { } }\n"
                         "  Transform \"leg\" { }\n  Transform \"leg\" { }\n"
                         "  Material \"red / blue\" { }\n  Material \"quote \\\" line\\n\" { }\n"
                         "  Material \"Mesh[0]\" { }\n  Material \"a.b\" { }\n  Material \"a=b\" { }\n  Mesh { }\n}\n"
                         "Widget \"w\" { unknown = 1 }\nWidget { }\n",
        "sample");
    reader.run();
    NxRef<NxGroup> scene = reader.takeScene();
    fuzz::check(static_cast<bool>(scene), "the sample scene is read");
    return scene;
}

void followPath(NxGroup* scene, std::string_view path)
{
    const NxScenePath::Target target = NxScenePath::find(scene, path);
    if (!target.error.empty()) {
        fuzz::check(target.nodes.empty() && target.field == nullptr, "a refused path leads nowhere");
        return;
    }
    const std::string text = target.field == nullptr ? NxScenePath::toText(scene, target.nodes)
                                                     : NxScenePath::toText(scene, target.nodes, target.field);
    const NxScenePath::Target again = NxScenePath::find(scene, text);
    fuzz::check(again.error.empty(), "its path is a path");
    fuzz::check(again.nodes == target.nodes && again.field == target.field, "it leads to the same place");
}

void assign(NxGroup* scene, const QString& argument)
{
    const auto parsed
        = CommandLine::parse({QStringLiteral("orvane"), QStringLiteral("--set=") + argument, QStringLiteral("a.mrd")});
    if (!parsed)
        return;
    fuzz::check(parsed.value().assignments.size() == 1, "one argument is one assignment");
    const CommandLine::Assignment& assignment = parsed.value().assignments.first();
    fuzz::check(assignment.path + u'=' + assignment.text == argument, "both parts are the argument");

    if (!orvane::setField(scene, assignment)) {
        fuzz::check(NxSceneWriter::toText(scene) == NxSceneWriter::toText(makeScene().get()),
            "a refused assignment leaves the scene alone");
        return;
    }
    const auto text = orvane::fieldText(scene, assignment.path);
    fuzz::check(bool(text), "a field that was set has a text");
    const NxRef<NxGroup> other = makeScene();
    fuzz::check(bool(orvane::setField(other.get(), {assignment.path, text.value()})), "its own text form is taken");
    fuzz::check(NxSceneWriter::toText(other.get()) == NxSceneWriter::toText(scene), "it is the same scene");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    const NxRef<NxGroup> scene = makeScene();
    const std::string_view input = fuzz::toText(bytes, count);
    followPath(scene.get(), input);
    assign(scene.get(), QString::fromUtf8(input.data(), static_cast<qsizetype>(input.size())));
    return 0;
}
