#pragma once

#include "orvane/transfer/FramedFiles.h"

#include <assimp/IOSystem.hpp>
#include <memory>
#include <string>
#include <vector>

namespace orvane {

/// Files that the export library writes, kept in memory: the process writes nothing to the disk.
class MemoryFiles : public Assimp::IOSystem {
public:
    using Assimp::IOSystem::Exists;
    using Assimp::IOSystem::Open;

    [[nodiscard]] bool Exists(const char* path) const override;
    [[nodiscard]] char getOsSeparator() const override { return '/'; }
    /// Opens a file for writing and replaces one of that name. Returns null for reading.
    [[nodiscard]] Assimp::IOStream* Open(const char* path, const char* mode) override;
    void Close(Assimp::IOStream* stream) override;

    /// The files in the order in which they were opened first.
    [[nodiscard]] std::vector<NamedFile> takeFiles();

private:
    std::vector<std::shared_ptr<NamedFile>> m_files;
};

} // namespace orvane
