// Recovery files. The bytes are read as a file, and as operations whose checksums are right, on nodes of some classes:
// a scene that is recovered gives the same scene when it is captured and recovered again.

#include "Fuzz.h"

#include "meridane/scene/file/NxSceneWriter.h"
#include "meridane/scene/journal/Journal.h"
#include "meridane/scene/nodes/NxFieldGallery.h"
#include "meridane/scene/nodes/NxTransform.h"
#include "meridane/scene/nodes/NxUnknownNode.h"
#include "meridane/scene/recovery/RecoveryCapture.h"
#include "meridane/scene/recovery/RecoveryFileReader.h"
#include "meridane/scene/recovery/RecoveryReplay.h"
#include "meridane/scene/recovery/detail/EntryWriter.h"
#include "meridane/scene/recovery/detail/OperationWriter.h"

#include <array>
#include <chrono>
#include <string>

namespace {

using meridane::RecoveryFileReader;
using meridane::RecoveryReplay;

NxRef<NxGroup> recover(std::string bytes)
{
    RecoveryFileReader file(std::move(bytes));
    if (file.run() != RecoveryFileReader::State::Done) {
        fuzz::check(!file.failure().empty(), "a refused file has a message");
        return nullptr;
    }
    RecoveryReplay replay(file, nullptr);
    if (replay.run() != RecoveryReplay::State::Done)
        fuzz::check(!replay.failure().empty(), "a refused change has a message");
    return replay.takeScene();
}

/// A file with these operations, after those that make the nodes 1, 2 and 3 of the classes 0, 1 and 2.
std::string fileOf(std::string_view operations)
{
    meridane::OperationWriter nodes;
    nodes.node(*NxRef<NxTransform>(new NxTransform));
    nodes.node(*NxRef<NxFieldGallery>(new NxFieldGallery));
    nodes.node(*NxRef<NxUnknownNode>(new NxUnknownNode));
    nodes.children(0, 0, 0, std::array<std::uint64_t, 3>{1, 2, 3});
    std::string first;
    nodes.moveTo(first);

    std::string bytes;
    meridane::EntryWriter writer;
    meridane::RecoveryDescription description;
    description.nodeCount = 1;
    writer.begin(bytes, description);
    writer.operations(bytes, first);
    writer.operations(bytes, operations);
    writer.commit(bytes, {});
    return bytes;
}

std::string captured(NxGroup& scene)
{
    meridane::Journal journal(scene);
    while (journal.run(std::chrono::hours(1))) { }
    journal.record();
    meridane::RecoveryCapture capture(journal, {});
    std::string bytes;
    while (capture.run(bytes, std::chrono::seconds(0))) { }
    fuzz::check(!capture.hasFailed(), "what was recovered is captured");
    return bytes;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t count)
{
    const std::string_view input = fuzz::toText(bytes, count);
    static_cast<void>(recover(std::string(input)));
    const NxRef<NxGroup> scene = recover(fileOf(input));
    if (!scene)
        return 0;
    const NxRef<NxGroup> again = recover(captured(*scene));
    fuzz::check(bool(again), "what was captured is recovered");
    fuzz::check(NxSceneWriter::toText(again.get()) == NxSceneWriter::toText(scene.get()), "it is the same scene");
    return 0;
}
