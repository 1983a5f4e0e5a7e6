#include "meridane/base/types/NxType.h"

#include "meridane/base/types/ClassClash.h"
#include "meridane/base/values/VbName.h"

#include <array>
#include <atomic>
#include <memory>
#include <mutex>
#include <unordered_map>
#include <utility>

namespace {

struct ClassRecord {
    VbName name;
    NxType parent;
    std::atomic<NxType::Factory> factory = nullptr;
    // The class's bases from the root to itself: a class derives from another one exactly if that one is in
    // this list at its own depth.
    std::vector<std::uint32_t> lineage;
    // An address in the code that registered the class, which says whose it is.
    const void* registrar = nullptr;
};

// Records are read without a lock, so they never move: they live in chunks that are only ever added.
class Registry {
public:
    static Registry& instance()
    {
        static auto* const registry = new Registry;
        return *registry;
    }

    [[nodiscard]] ClassRecord* find(std::uint32_t index) const noexcept
    {
        if (index == 0)
            return nullptr;
        return &(*m_chunks[(index - 1) / chunkSize])[(index - 1) % chunkSize];
    }

    // Adds a record and returns its index, or 0 if there is no room.
    std::uint32_t add(const VbName& name, NxType parent, const ClassRecord* parentRecord, NxType::Factory factory,
        const void* registrar)
    {
        const std::uint32_t position = m_count.load(std::memory_order_relaxed);
        if (position == static_cast<std::size_t>(chunkSize) * m_chunks.size())
            return 0;
        auto& chunk = m_chunks[position / chunkSize];
        if (!chunk)
            chunk = std::make_unique<Chunk>();
        std::vector<std::uint32_t> lineage;
        if (parentRecord != nullptr)
            lineage = parentRecord->lineage;
        lineage.push_back(position + 1);
        byName.insert_or_assign(name.getString(), position + 1);
        // From here on no allocation can fail, so a record is added completely or not at all.
        ClassRecord& record = (*chunk)[position % chunkSize];
        record.name = name;
        record.parent = parent;
        record.factory = factory;
        record.lineage = std::move(lineage);
        record.registrar = registrar;
        m_count.store(position + 1, std::memory_order_release);
        return position + 1;
    }

    [[nodiscard]] std::uint32_t count() const noexcept { return m_count.load(std::memory_order_acquire); }

    std::mutex mutex;
    std::unordered_map<const char*, std::uint32_t> byName; // keyed by the interned text; guarded by the mutex

private:
    static constexpr std::uint32_t chunkSize = 256;
    using Chunk = std::array<ClassRecord, chunkSize>;

    std::array<std::unique_ptr<Chunk>, 1024> m_chunks;
    std::atomic<std::uint32_t> m_count = 0;
};

} // namespace

NxType NxType::registerClass(const VbName& name, NxType parent, Factory factory)
{
    const void* const registrar = __builtin_return_address(0);
    Registry& registry = Registry::instance();
    const std::lock_guard lock(registry.mutex);
    if (const auto holder = registry.byName.find(name.getString()); holder != registry.byName.end()) {
        meridane::noteClassClash({name, registry.find(holder->second)->registrar, registrar});
        return NxType();
    }
    return NxType(registry.add(name, parent, registry.find(parent.m_index), factory, registrar));
}

void NxType::unregisterClass(NxType type)
{
    Registry& registry = Registry::instance();
    const std::lock_guard lock(registry.mutex);
    ClassRecord* const record = registry.find(type.m_index);
    if (record == nullptr)
        return;
    record->factory = nullptr;
    const auto entry = registry.byName.find(record->name.getString());
    if (entry != registry.byName.end() && entry->second == type.m_index)
        registry.byName.erase(entry);
}

NxType NxType::fromName(const VbName& name)
{
    Registry& registry = Registry::instance();
    const std::lock_guard lock(registry.mutex);
    const auto entry = registry.byName.find(name.getString());
    return entry == registry.byName.end() ? NxType() : NxType(entry->second);
}

std::vector<NxType> NxType::getAllDerivedFrom(NxType type)
{
    Registry& registry = Registry::instance();
    std::vector<NxType> result;
    const std::lock_guard lock(registry.mutex);
    for (std::uint32_t index = 1; index <= registry.count(); ++index) {
        const NxType candidate(index);
        const auto entry = registry.byName.find(registry.find(index)->name.getString());
        if (entry != registry.byName.end() && entry->second == index && candidate.isDerivedFrom(type))
            result.push_back(candidate);
    }
    return result;
}

VbName NxType::getName() const
{
    const ClassRecord* const record = Registry::instance().find(m_index);
    return record == nullptr ? VbName() : record->name;
}

NxType NxType::getParent() const noexcept
{
    const ClassRecord* const record = Registry::instance().find(m_index);
    return record == nullptr ? NxType() : record->parent;
}

bool NxType::canCreateInstance() const noexcept
{
    const ClassRecord* const record = Registry::instance().find(m_index);
    return record != nullptr && record->factory != nullptr;
}

bool NxType::isDerivedFrom(const NxType& other) const noexcept
{
    const Registry& registry = Registry::instance();
    const ClassRecord* const record = registry.find(m_index);
    const ClassRecord* const base = registry.find(other.m_index);
    if (record == nullptr || base == nullptr)
        return false;
    const std::size_t depth = base->lineage.size();
    return record->lineage.size() >= depth && record->lineage[depth - 1] == other.m_index;
}

void* NxType::createInstance(NxType* overrideType) const
{
    if (overrideType != nullptr)
        return overrideType->isDerivedFrom(*this) ? overrideType->createInstance(nullptr) : nullptr;
    const ClassRecord* const record = Registry::instance().find(m_index);
    const Factory factory = record == nullptr ? nullptr : record->factory.load();
    return factory == nullptr ? nullptr : factory();
}
