#include "orvane/import/FramedFiles.h"

#include <algorithm>
#include <charconv>

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

bool takeStart(std::string_view& bytes, std::string_view start)
{
    if (!bytes.starts_with(start))
        return false;
    bytes.remove_prefix(start.size());
    return true;
}

std::optional<NamedFile> takeFile(std::string_view& bytes)
{
    const std::size_t lineEnd = bytes.find('\n');
    if (!takeStart(bytes, fileWord) || lineEnd == std::string_view::npos)
        return std::nullopt;
    const std::string_view line = bytes.substr(0, lineEnd - fileWord.size());
    bytes.remove_prefix(line.size() + 1);

    std::size_t size = 0;
    const auto [behind, error] = std::from_chars(line.data(), line.data() + line.size(), size);
    const auto digits = static_cast<std::size_t>(behind - line.data());
    if (error != std::errc() || digits >= line.size() || line[digits] != ' ' || size > bytes.size())
        return std::nullopt;
    NamedFile file{std::string(line.substr(digits + 1)), std::string(bytes.substr(0, size))};
    bytes.remove_prefix(size);
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
