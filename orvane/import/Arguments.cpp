#include "orvane/import/Arguments.h"

#include <charconv>
#include <cstdlib>
#include <string_view>

namespace orvane {
namespace {

bool parseSpace(std::string_view text, ImportOptions::Space& space)
{
    using Space = ImportOptions::Space;
    if (text != "convert" && text != "axes" && text != "keep")
        return false;
    space = text == "convert" ? Space::Convert : text == "axes" ? Space::Axes : Space::Keep;
    return true;
}

bool parseNumber(std::string_view text, std::size_t& number)
{
    const auto [behind, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    // A MiB count must fit in bytes as well.
    return error == std::errc() && behind == text.data() + text.size() && number < (std::size_t{1} << 40);
}

bool takeEnvironment(Arguments& arguments, std::string& error)
{
    const char* memory = std::getenv("ORVANE_IMPORT_MEMORY");
    if (memory == nullptr || parseNumber(memory, arguments.limits.memoryMiB))
        return true;
    error = std::string("ORVANE_IMPORT_MEMORY must be a number of MiB, not \"") + memory + "\"";
    return false;
}

// A task that takes no value.
std::optional<Arguments::Task> plainTask(std::string_view option)
{
    if (option == "--pictures")
        return Arguments::Task::Pictures;
    if (option == "--formats")
        return Arguments::Task::Formats;
    if (option == "--locks")
        return Arguments::Task::ShowSandbox;
    return option == "--help" ? std::optional(Arguments::Task::Help) : std::nullopt;
}

// Null for an option that takes no value.
std::string* valueOf(std::string_view option, Arguments& arguments)
{
    if (option == "--read") {
        arguments.task = Arguments::Task::Read;
        return &arguments.subject;
    }
    if (option == "--write") {
        arguments.task = Arguments::Task::Write;
        return &arguments.subject;
    }
    if (option == "--space")
        return &arguments.space;
    return option == "--name" ? &arguments.name : nullptr;
}

std::size_t* numberOf(std::string_view option, Arguments& arguments)
{
    if (option == "--memory")
        return &arguments.limits.memoryMiB;
    if (option == "--processor-time")
        return &arguments.processorSeconds.emplace();
    return option == "--parent" ? &arguments.parent : nullptr;
}

// Replaces each %41 by the byte of that number in hexadecimal digits.
bool decode(std::string& text)
{
    std::string bytes;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] != '%') {
            bytes += text[index];
            continue;
        }
        unsigned int byte = 0;
        const char* const digits = text.data() + index + 1;
        if (index + 2 >= text.size() || std::from_chars(digits, digits + 2, byte, 16).ptr != digits + 2 || byte == 0)
            return false;
        bytes += static_cast<char>(byte);
        index += 2;
    }
    text = bytes;
    return true;
}

bool* flagOf(std::string_view option, Arguments& arguments)
{
    if (option == "--packed")
        return &arguments.packed;
    if (option == "--keep-groups")
        return &arguments.import.keepsGroups;
    return option == "--encoded" ? &arguments.encoded : nullptr;
}

// Checks what goes together, and takes the values that depend on another argument.
bool complete(Arguments& arguments, std::string& error)
{
    const bool isRead = arguments.task == Arguments::Task::Read;
    if (arguments.packed && !isRead)
        error = "--packed goes with --read only";
    else if (!parseSpace(arguments.space, arguments.import.space))
        error = "--space needs convert, axes or keep, not \"" + arguments.space + "\"";
    else if (arguments.import.keepsGroups && !isRead)
        error = "--keep-groups goes with --read only";
    else if (arguments.encoded && !(decode(arguments.subject) && decode(arguments.name)))
        error = "with --encoded each % needs two hexadecimal digits behind it, other than 00";
    else
        return true;
    return false;
}

} // namespace

const char* usage() noexcept
{
    return "Usage: orvane-import --read FILE            write the model as a scene to standard output,\n"
           "                     [--packed]             with its long lists as they lie in memory, for a tool of\n"
           "                                            the same build\n"
           "                     [--space SPACE]        with the unit and the up axis of the file: convert to\n"
           "                                            metres with y upwards (the default), axes, which only\n"
           "                                            turns, or keep\n"
           "                     [--keep-groups]        with the groups that have one child and no effect\n"
           "       orvane-import --write EXTENSION      read a scene from standard input and write the model,\n"
           "                     [--name NAME]          as framed files, to standard output\n"
           "       orvane-import --pictures             decode the image files that come from standard input, for a\n"
           "                                            tool of the same build\n"
           "       orvane-import --formats              list the extensions that are read and written\n"
           "       orvane-import --locks                show which parts of the sandbox this machine has\n"
           "Options: --memory MIB                       memory to take at most, 0 for no limit (default 4096,\n"
           "                                            or what ORVANE_IMPORT_MEMORY says)\n"
           "         --processor-time SECONDS           processor time to take at most, 0 for no limit (default 20\n"
           "                                            and 2 more for each MiB that is read; 300\n"
           "                                            for --pictures)\n"
           "         --encoded                          FILE and NAME have %41 for the byte 0x41, as in a URL\n"
           "         --parent PROCESS                   end when that process ends, which must have started this\n"
           "                                            one\n";
}

std::optional<Arguments> parseArguments(std::span<const char* const> texts, std::string& error)
{
    Arguments arguments;
    int tasks = 0;
    if (!takeEnvironment(arguments, error))
        return std::nullopt;
    for (std::size_t index = 0; index < texts.size(); ++index) {
        const std::string option = texts[index];
        if (const std::optional<Arguments::Task> task = plainTask(option)) {
            arguments.task = *task;
            ++tasks;
            continue;
        }
        if (bool* const flag = flagOf(option, arguments)) {
            *flag = true;
            continue;
        }
        std::string* const value = valueOf(option, arguments);
        std::size_t* const number = numberOf(option, arguments);
        if (value == nullptr && number == nullptr) {
            error = "unknown argument \"" + option + "\"";
            return std::nullopt;
        }
        if (++index == texts.size()) {
            error = option + " needs a value";
            return std::nullopt;
        }
        if (number != nullptr && !parseNumber(texts[index], *number)) {
            error = option + " needs a whole number, not \"" + texts[index] + "\"";
            return std::nullopt;
        }
        if (value != nullptr)
            *value = texts[index];
        tasks += value == &arguments.subject ? 1 : 0;
    }
    if (tasks != 1) {
        error = "one of --read, --write, --pictures, --formats and --locks is needed";
        return std::nullopt;
    }
    if (!complete(arguments, error))
        return std::nullopt;
    return arguments;
}

} // namespace orvane
