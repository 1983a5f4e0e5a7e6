#include "meridane/base/values/detail/VbNameChunk.h"

#include <mutex>
#include <string>
#include <unordered_set>

namespace {

// Never destroyed, because static objects use names until the process ends.
struct NameTable {
    std::mutex mutex;
    std::unordered_set<std::string> texts;
};

NameTable& nameTable()
{
    static auto* const table = new NameTable;
    return *table;
}

} // namespace

const char* VbNameChunk::insert(const char* text)
{
    NameTable& table = nameTable();
    const std::lock_guard lock(table.mutex);
    return table.texts.emplace(text == nullptr ? "" : text).first->c_str();
}
