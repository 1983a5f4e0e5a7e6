#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvane {

/// Finds the image files that a model refers to, in the model's folder and below it, whatever folder the path names:
/// exporters write paths of their own machine, backslashes, and names in another case.
class TextureSearch {
public:
    /// No more files and folders than these are looked through.
    static constexpr int mostEntries = 20'000;
    static constexpr int deepestFolder = 8;

    /// `model` is the path of the model's own file.
    explicit TextureSearch(const std::string& model);

    /// The path of the image, relative to the model's folder; nothing if there is none. Of several files with the name,
    /// it is the one whose folders agree best with the path, then the one that is the least deep.
    [[nodiscard]] std::optional<std::string> find(std::string_view path);

private:
    [[nodiscard]] bool isUsable(const std::filesystem::path& path) const;
    void listFiles();

    std::filesystem::path m_folder;
    std::filesystem::path m_realFolder; // without symbolic links
    bool m_isListed = false;
    std::map<std::string, std::vector<std::filesystem::path>> m_files; // by their names in lower case
};

} // namespace orvane
