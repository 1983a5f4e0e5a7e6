#include "orvane/import/conversion/TextureSearch.h"

#include "orvane/import/conversion/ModelFormats.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <iterator>
#include <system_error>

namespace orvane {
namespace {

namespace fs = std::filesystem;

std::string slashed(std::string_view path)
{
    std::string result(path);
    std::replace(result.begin(), result.end(), '\\', '/');
    return result;
}

/// Replaces each %41 by the byte of that number in hexadecimal digits, as in a URL.
std::string decoded(const std::string& text)
{
    std::string result;
    for (std::size_t index = 0; index < text.size(); ++index) {
        unsigned int byte = 0;
        const char* const digits = text.data() + index + 1;
        const bool isCode = text[index] == '%' && index + 2 < text.size()
            && std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2 && byte != 0;
        result += isCode ? static_cast<char>(byte) : text[index];
        index += isCode ? 2 : 0;
    }
    return result;
}

/// How many folders of two paths have the same names, from the file upwards.
std::ptrdiff_t commonFolders(const fs::path& one, const fs::path& other)
{
    const std::string left = lowerCase(one.parent_path().string());
    const std::string right = lowerCase(other.parent_path().string());
    const fs::path leftPath(left);
    const fs::path rightPath(right);
    const std::vector<fs::path> leftFolders(leftPath.begin(), leftPath.end());
    const std::vector<fs::path> rightFolders(rightPath.begin(), rightPath.end());
    const auto end
        = std::mismatch(leftFolders.rbegin(), leftFolders.rend(), rightFolders.rbegin(), rightFolders.rend());
    return std::distance(leftFolders.rbegin(), end.first);
}

} // namespace

TextureSearch::TextureSearch(const std::string& model)
    : m_folder(fs::path(model).has_parent_path() ? fs::path(model).parent_path() : fs::path("."))
{
    std::error_code error;
    m_realFolder = fs::canonical(m_folder, error);
}

std::optional<std::string> TextureSearch::find(std::string_view path)
{
    const std::string given = slashed(path);
    for (const std::string& name : {given, decoded(given)}) {
        if (!name.empty() && fs::path(name).is_relative() && isUsable(m_folder / name))
            return name;
    }
    listFiles();
    for (const std::string& name : {given, decoded(given)}) {
        const fs::path wanted(name);
        const std::string file = wanted.filename().string();
        const auto found = m_files.find(lowerCase(file));
        if (found == m_files.end())
            continue;
        const auto rank = [&](const fs::path& candidate) {
            const bool isExact = candidate.filename().string() == file;
            return std::pair(commonFolders(candidate, wanted), isExact);
        };
        // They are in the order of their depth, which decides between equals.
        return std::max_element(found->second.begin(), found->second.end(),
            [&](const fs::path& left, const fs::path& right) { return rank(left) < rank(right); })
            ->generic_string();
    }
    return std::nullopt;
}

// A symbolic link may lead to another folder.
bool TextureSearch::isUsable(const fs::path& path) const
{
    std::error_code error;
    const fs::path real = fs::canonical(path, error);
    return !error && fs::is_regular_file(real, error)
        && std::mismatch(m_realFolder.begin(), m_realFolder.end(), real.begin(), real.end()).first
        == m_realFolder.end();
}

void TextureSearch::listFiles()
{
    if (m_isListed)
        return;
    m_isListed = true;
    std::error_code error;
    int entries = 0;
    std::vector<fs::path> files;
    fs::recursive_directory_iterator entry(m_folder, fs::directory_options::skip_permission_denied, error);
    for (; !error && entry != fs::recursive_directory_iterator() && ++entries <= mostEntries; entry.increment(error)) {
        if (entry.depth() >= deepestFolder)
            entry.disable_recursion_pending();
        if (std::error_code problem; !entry->is_directory(problem) && isUsable(entry->path()))
            files.push_back(entry->path().lexically_relative(m_folder));
    }
    const auto depth = [](const fs::path& path) { return std::distance(path.begin(), path.end()); };
    std::sort(files.begin(), files.end(), [&](const fs::path& left, const fs::path& right) {
        return std::pair(depth(left), left) < std::pair(depth(right), right);
    });
    for (fs::path& file : files)
        m_files[lowerCase(file.filename().string())].push_back(std::move(file));
}

} // namespace orvane
