#include "meridane/base/types/ClassClash.h"

#include <cstddef>
#include <mutex>
#include <utility>

namespace {

constexpr std::size_t mostClashes = 100;

struct NotedClashes {
    std::mutex mutex;
    std::vector<meridane::ClassClash> list;

    // Classes are registered by static initialisers, so this is never destroyed.
    static NotedClashes& instance()
    {
        static auto* const clashes = new NotedClashes;
        return *clashes;
    }
};

} // namespace

void meridane::noteClassClash(const ClassClash& clash)
{
    NotedClashes& noted = NotedClashes::instance();
    const std::lock_guard lock(noted.mutex);
    if (noted.list.size() < mostClashes)
        noted.list.push_back(clash);
}

std::vector<meridane::ClassClash> meridane::takeClassClashes()
{
    NotedClashes& noted = NotedClashes::instance();
    const std::lock_guard lock(noted.mutex);
    return std::exchange(noted.list, {});
}
