#include "orvane/transfer/FramedFiles.h"

#include "orvane/transfer/Frames.h"

#include <algorithm>

namespace orvane {
namespace {

constexpr std::string_view startLine = "orvane-files 1\n";
constexpr std::string_view endLine = "end\n";
constexpr std::string_view fileWord = "file ";

bool isPlainName(std::string_view name)
{
    return !name.empty() && name.front() != '.' && name.find('/') == std::string_view::npos
        && std::none_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; });
}

std::optional<NamedFile> takeFile(std::string_view& bytes)
{
    std::optional<std::string_view> line = takeLine(bytes);
    if (!line || !takeStart(*line, fileWord))
        return std::nullopt;
    const std::optional<std::size_t> size = takeNumber(*line);
    if (!size || !takeStart(*line, " ") || *size > bytes.size())
        return std::nullopt;
    NamedFile file{std::string(*line), std::string(bytes.substr(0, *size))};
    bytes.remove_prefix(*size);
    return file;
}

} // namespace

std::string framedFilesStart()
{
    return std::string(startLine);
}

std::string framedFileHeader(std::string_view name, std::size_t size)
{
    return std::string(fileWord).append(std::to_string(size)).append(" ").append(name).append("\n");
}

std::string framedFilesEnd()
{
    return std::string(endLine);
}

std::optional<std::vector<NamedFile>> unpackFramedFiles(std::string_view bytes)
{
    std::vector<NamedFile> files;
    if (!takeStart(bytes, startLine))
        return std::nullopt;
    while (bytes != endLine) {
        std::optional<NamedFile> file = takeFile(bytes);
        if (!file || !isPlainName(file->name))
            return std::nullopt;
        if (std::any_of(files.begin(), files.end(), [&](const NamedFile& other) { return other.name == file->name; }))
            return std::nullopt;
        files.push_back(std::move(*file));
    }
    if (files.empty())
        return std::nullopt;
    return files;
}

} // namespace orvane
