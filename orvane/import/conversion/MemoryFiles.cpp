#include "orvane/import/conversion/MemoryFiles.h"

#include <algorithm>
#include <assimp/IOStream.hpp>
#include <utility>

namespace orvane {
namespace {

std::string_view lastPart(std::string_view path)
{
    const std::size_t slash = path.find_last_of('/');
    return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

class MemoryStream final : public Assimp::IOStream {
public:
    explicit MemoryStream(std::shared_ptr<NamedFile> file)
        : m_file(std::move(file))
    {
    }

    std::size_t Read(void*, std::size_t, std::size_t) override { return 0; }

    std::size_t Write(const void* buffer, std::size_t size, std::size_t count) override
    {
        const std::size_t length = size * count;
        std::string& bytes = m_file->bytes;
        if (m_position + length > bytes.size())
            bytes.resize(m_position + length);
        std::copy_n(static_cast<const char*>(buffer), length, bytes.begin() + static_cast<std::ptrdiff_t>(m_position));
        m_position += length;
        return count;
    }

    aiReturn Seek(std::size_t offset, aiOrigin origin) override
    {
        const std::size_t base = origin == aiOrigin_SET ? 0 : origin == aiOrigin_CUR ? m_position : FileSize();
        // As in a file, the position may be after the end; writing there fills the gap with zeros.
        m_position = base + offset;
        return aiReturn_SUCCESS;
    }

    [[nodiscard]] std::size_t Tell() const override { return m_position; }
    [[nodiscard]] std::size_t FileSize() const override { return m_file->bytes.size(); }
    void Flush() override { }

private:
    std::shared_ptr<NamedFile> m_file;
    std::size_t m_position = 0;
};

} // namespace

bool MemoryFiles::Exists(const char* path) const
{
    return std::any_of(m_files.begin(), m_files.end(), [&](const auto& file) { return file->name == lastPart(path); });
}

Assimp::IOStream* MemoryFiles::Open(const char* path, const char* mode)
{
    if (std::string_view(mode).find('w') == std::string_view::npos)
        return nullptr;
    const std::string_view name = lastPart(path);
    auto place = std::find_if(m_files.begin(), m_files.end(), [&](const auto& file) { return file->name == name; });
    if (place == m_files.end())
        place = m_files.insert(m_files.end(), std::make_shared<NamedFile>());
    **place = NamedFile{std::string(name), {}};
    return new MemoryStream(*place);
}

void MemoryFiles::Close(Assimp::IOStream* stream)
{
    delete stream;
}

std::vector<NamedFile> MemoryFiles::takeFiles()
{
    std::vector<NamedFile> files;
    for (const auto& file : std::exchange(m_files, {}))
        files.push_back(std::move(*file));
    return files;
}

} // namespace orvane
