// The scene reader: an accepted scene is written to a text, and reading and writing that gives the same text.

#include "Fuzz.h"

#include "meridane/scene/file/NxSceneReader.h"
#include "meridane/scene/file/NxSceneWriter.h"

#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    NxSceneReader reader(std::string(fuzz::toText(bytes, count)), "input");
    if (reader.run() != NxSceneReader::State::Done) {
        fuzz::check(!reader.failure().text().empty(), "a refused text has a message");
        return 0;
    }
    const NxRef<NxGroup> scene = reader.takeScene();
    const std::string text = NxSceneWriter::toText(scene.get());
    NxSceneReader second(text, "output");
    fuzz::check(second.run() == NxSceneReader::State::Done, "what was written is read");
    fuzz::check(NxSceneWriter::toText(second.takeScene().get()) == text, "it is the same scene");
    return 0;
}
