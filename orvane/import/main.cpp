#include "orvane/import/Arguments.h"
#include "orvane/import/conversion/ModelFormats.h"
#include "orvane/import/conversion/ModelReader.h"
#include "orvane/import/conversion/ModelWriter.h"
#include "orvane/import/pictures/PictureService.h"
#include "orvane/import/sandbox/Coverage.h"
#include "orvane/import/sandbox/FileAccess.h"
#include "orvane/import/sandbox/HeapTuning.h"
#include "orvane/import/sandbox/Sandbox.h"
#include "orvane/import/sandbox/Sanitizer.h"
#include "orvane/import/sandbox/StandardStreams.h"
#include "orvane/transfer/PackedScene.h"
#include "orvane/transfer/WorkTime.h"

#include "meridane/scene/file/NxSceneReader.h"
#include "meridane/scene/file/NxSceneWriter.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

namespace {

using orvane::Arguments;

enum Status : int { Success = 0, Failure = 1, BadArguments = 2 };

int fail(const std::string& message, Status status = Failure)
{
    std::fprintf(stderr, "%s\n", message.c_str());
    return status;
}

bool writeText(NxGroup& scene, const orvane::ModelReader& reader, std::string& error)
{
    for (const std::string& warning : reader.warnings())
        std::fprintf(stderr, "warning: %s\n", warning.c_str());
    if (!reader.note().text.empty())
        std::fprintf(stderr, "note: %s\n", reader.note().text.c_str());
    NxSceneWriter writer(&scene);
    std::string text;
    // In parts, so that the text of a large scene needn't fit in memory as a whole.
    constexpr std::chrono::milliseconds portion(2);
    bool more = true;
    while (more) {
        more = writer.step(text, portion);
        if (!orvane::writeAll(text, error))
            return false;
        text.clear();
    }
    error = writer.failure();
    return error.empty();
}

bool writePacked(NxGroup& scene, const orvane::ModelReader& reader, std::string& error)
{
    const orvane::PackedScene packed(scene, reader.warnings(), reader.note());
    error = packed.failure();
    if (!error.empty())
        return false;
    const std::vector<std::string_view> portions = packed.portions();
    return std::all_of(
        portions.begin(), portions.end(), [&](std::string_view portion) { return orvane::writeAll(portion, error); });
}

int readModel(const std::string& path, const Arguments& arguments)
{
    std::string error;
    orvane::ModelReader reader(arguments.import);
    const NxRef<NxGroup> scene = reader.read(path, error);
    if (!scene)
        return fail(error);
    if (!(arguments.packed ? writePacked(*scene, reader, error) : writeText(*scene, reader, error)))
        return fail(error);
    // The end of the process frees all memory at once, which is faster than freeing it block by block. Only the leak
    // check needs that, and the counts of branches, which are written then.
    if constexpr (!orvane::isSanitized() && orvane::coverageFolder().empty())
        std::_Exit(Success);
    return Success;
}

int writeModel(const std::string& extension, const std::string& name, std::string sceneText)
{
    std::string error;
    NxSceneReader reader(std::move(sceneText), "standard input");
    if (reader.run() != NxSceneReader::State::Done)
        return fail(reader.failure().text());
    const std::vector<orvane::NamedFile> files = orvane::writeModel(*reader.takeScene(), extension, name, error);
    if (files.empty())
        return fail(name + "." + extension + ": " + error);
    bool good = orvane::writeAll(orvane::framedFilesStart(), error);
    for (const orvane::NamedFile& file : files)
        good = good && orvane::writeAll(orvane::framedFileHeader(file.name, file.bytes.size()), error)
            && orvane::writeAll(file.bytes, error);
    good = good && orvane::writeAll(orvane::framedFilesEnd(), error);
    return good ? Success : fail(error);
}

int decodePictures()
{
    std::string error;
    return orvane::servePictures(error) ? Success : fail(error);
}

int printText(const std::string& text)
{
    std::string error;
    return orvane::writeAll(text, error) ? Success : fail(error);
}

int listFormats()
{
    std::string text = "read";
    for (const std::string& extension : orvane::readableExtensions())
        text += " " + extension;
    text += "\nwrite";
    for (const std::string& extension : orvane::writableExtensions())
        text += " " + extension;
    return printText(text + "\n");
}

// The input is read before the process enters the sandbox, because the time limit depends on its size. It isn't parsed
// here.
bool readInput(const Arguments& arguments, std::string& input, std::string& error)
{
    if (arguments.task != Arguments::Task::Write)
        return true;
    if (!orvane::exportFormat(arguments.subject).empty())
        return orvane::readAll(input, error);
    error = arguments.name + "." + arguments.subject + ": models of this format can't be written";
    return false;
}

std::chrono::seconds processorTime(const Arguments& arguments, const std::string& input)
{
    if (arguments.processorSeconds)
        return std::chrono::seconds(*arguments.processorSeconds);
    // The number of requests isn't known; each picture is limited by its number of pixels.
    constexpr std::chrono::seconds pictures{300};
    if (arguments.task == Arguments::Task::Pictures)
        return pictures;
    return orvane::processorTimeFor(
        arguments.task == Arguments::Task::Read ? orvane::modelSize(arguments.subject) : input.size());
}

int run(const Arguments& arguments, std::string input, const orvane::SandboxState& sandbox)
{
    switch (arguments.task) {
    case Arguments::Task::Read:
        return readModel(arguments.subject, arguments);
    case Arguments::Task::Write:
        return writeModel(arguments.subject, arguments.name, std::move(input));
    case Arguments::Task::Pictures:
        return decodePictures();
    case Arguments::Task::Formats:
        return listFormats();
    case Arguments::Task::ShowSandbox:
        return printText(orvane::toText(sandbox));
    case Arguments::Task::Help:
        return printText(orvane::usage());
    }
    return BadArguments;
}

} // namespace

int main(int argc, char** argv)
{
    std::string error;
    const std::span<const char* const> texts(argv, static_cast<std::size_t>(argc));
    const std::optional<Arguments> arguments = orvane::parseArguments(texts.subspan(argc > 0 ? 1 : 0), error);
    if (!arguments)
        return fail(error + "; see --help", BadArguments);
    orvane::tuneHeap(arguments->limits);
    orvane::applyLimits(arguments->limits);
    if (arguments->parent != 0 && !orvane::endWithParent(static_cast<pid_t>(arguments->parent)))
        return fail("the process that started this one has ended");
    std::string input;
    if (!readInput(*arguments, input, error))
        return fail(error);
    orvane::limitProcessorTime(processorTime(*arguments, input));
    const bool reads = arguments->task == Arguments::Task::Read;
    // With a large pipe, if the system allows it, this process waits less for the tool to read.
    constexpr int pipeSize = 1 << 20;
    if (reads)
        fcntl(STDOUT_FILENO, F_SETPIPE_SZ, pipeSize);
    const orvane::SandboxState sandbox
        = orvane::enterSandbox(reads ? orvane::foldersOf(arguments->subject) : std::vector<std::string>());
    try {
        return run(*arguments, std::move(input), sandbox);
    } catch (const std::exception& exception) {
        return fail(std::string("the import library gave up: ") + exception.what());
    }
}
