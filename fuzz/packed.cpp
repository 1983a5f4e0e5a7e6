// Packed scenes, without their first line, which has the number of bytes: an accepted scene is packed again, and the
// result gives the same scene.

#include "Fuzz.h"

#include "orvane/transfer/PackedScene.h"
#include "orvane/transfer/PackedSceneReader.h"

#include "meridane/scene/file/NxSceneWriter.h"

#include <algorithm>
#include <string>
#include <utility>

namespace {

// The bytes arrive in parts; the first ones are short.
orvane::PackedParts split(const std::string& firstLine, std::string_view rest)
{
    orvane::PackedParts parts;
    parts.take(firstLine);
    for (std::size_t size = 1; !rest.empty(); ++size) {
        parts.take(rest.substr(0, size));
        rest.remove_prefix(std::min(size, rest.size()));
    }
    return parts;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    using orvane::PackedSceneReader;
    PackedSceneReader reader(
        split(std::string("orvane-scene 2 ").append(std::to_string(count)).append("\n"), fuzz::toText(bytes, count)));
    if (reader.run() != PackedSceneReader::State::Done) {
        fuzz::check(!reader.failure().empty(), "refused bytes have a message");
        fuzz::check(reader.failure().find('\n') == std::string::npos, "the message is one line");
        return 0;
    }
    const NxRef<NxGroup> scene = reader.takeScene();
    const std::string text = NxSceneWriter::toText(scene.get());
    const orvane::PackedScene packed(*scene);
    fuzz::check(packed.failure().empty(), "what was read is packed");
    std::string again;
    for (const std::string_view portion : packed.portions())
        again += portion;
    PackedSceneReader second(split({}, again));
    fuzz::check(second.run() == PackedSceneReader::State::Done, "what was packed is read");
    fuzz::check(NxSceneWriter::toText(second.takeScene().get()) == text, "it is the same scene");
    return 0;
}
