#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <assimp/DefaultIOSystem.h>

namespace orvane {

/// Opens the files of a model: regular files in its folder and below, after following symbolic links. This also works
/// on machines whose kernel can't restrict files, and prevents the import library from waiting for a pipe.
class ModelFiles : public Assimp::DefaultIOSystem {
public:
    /// `model` is the path of the model's own file.
    explicit ModelFiles(const std::string& model);

    [[nodiscard]] bool Exists(const char* path) const override;
    /// Lets the model's own file have another content.
    void replaceModel(std::string content);

    /// Returns null for any other file.
    [[nodiscard]] Assimp::IOStream* Open(const char* path, const char* mode) override;

private:
    [[nodiscard]] bool isUsable(const char* path) const;

    std::string m_model;
    std::vector<std::filesystem::path> m_folders; // without symbolic links
    std::optional<std::string> m_content; // that replaces the model's
};

} // namespace orvane
