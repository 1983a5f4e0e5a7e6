#include "orvane/import/conversion/ModelFiles.h"

#include "orvane/import/sandbox/FileAccess.h"

#include <algorithm>
#include <cstdint>
#include <system_error>
#include <utility>

#include <assimp/MemoryIOWrapper.h>

namespace orvane {
namespace {

bool isBelow(const std::filesystem::path& path, const std::filesystem::path& folder)
{
    return std::mismatch(folder.begin(), folder.end(), path.begin(), path.end()).first == folder.end();
}

} // namespace

ModelFiles::ModelFiles(const std::string& model)
    : m_model(model)
{
    for (const std::string& folder : foldersOf(model)) {
        std::error_code error;
        const std::filesystem::path real = std::filesystem::canonical(folder, error);
        if (!error)
            m_folders.push_back(real);
    }
}

bool ModelFiles::Exists(const char* path) const
{
    return isUsable(path) && DefaultIOSystem::Exists(path);
}

Assimp::IOStream* ModelFiles::Open(const char* path, const char* mode)
{
    if (m_content && path == m_model) {
        const std::string& content = *m_content;
        return new Assimp::MemoryIOStream(reinterpret_cast<const std::uint8_t*>(content.data()), content.size());
    }
    return isUsable(path) ? DefaultIOSystem::Open(path, mode) : nullptr;
}

void ModelFiles::replaceModel(std::string content)
{
    m_content = std::move(content);
}

bool ModelFiles::isUsable(const char* path) const
{
    std::error_code error;
    const std::filesystem::path real = std::filesystem::canonical(path, error);
    return !error && std::filesystem::is_regular_file(real, error)
        && std::any_of(m_folders.begin(), m_folders.end(), [&](const auto& folder) { return isBelow(real, folder); });
}

} // namespace orvane
