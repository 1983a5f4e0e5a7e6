#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <assimp/DefaultIOSystem.h>

namespace orvane {

/// The files that a model may be made of: regular files in its folder and below, behind all symbolic links. That holds
/// on machines too whose kernel doesn't lock files, and keeps the import library from waiting for a pipe.
class ModelFiles : public Assimp::DefaultIOSystem {
public:
    /// `model` is the path of the model's own file.
    explicit ModelFiles(const std::string& model);

    [[nodiscard]] bool Exists(const char* path) const override;
    /// Null for another file.
    [[nodiscard]] Assimp::IOStream* Open(const char* path, const char* mode) override;

private:
    [[nodiscard]] bool isUsable(const char* path) const;

    std::vector<std::filesystem::path> m_folders; // behind all symbolic links
};

} // namespace orvane
