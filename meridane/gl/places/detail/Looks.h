#pragma once

#include "meridane/gl/places/detail/Lights.h"
#include "meridane/gl/places/detail/LookRecords.h"
#include "meridane/gl/places/detail/SlotTable.h"

#include <array>
#include <map>
#include <memory>
#include <tuple>

namespace meridane {

/// The state that applies to a mesh, set by the nodes before it in its group and in the groups above. Null: not set.
struct Look {
    MaterialRecord* material = nullptr;
    std::array<TextureRecord*, NxTexture::roleCount> textures{}; ///< by role
    ComplexityRecord* complexity = nullptr;
    std::shared_ptr<const LightList> lights;

    /// The records of the nodes that it uses; some may be null.
    [[nodiscard]] std::array<NodeRecord*, NxTexture::roleCount + 2> records() const noexcept
    {
        return {material, complexity, textures[NxTexture::COLOR], textures[NxTexture::NORMAL],
            textures[NxTexture::METAL_ROUGHNESS]};
    }
    friend bool operator==(const Look&, const Look&) noexcept = default;
    friend bool operator<(const Look& a, const Look& b) noexcept
    {
        return std::tie(a.material, a.textures, a.complexity, a.lights)
            < std::tie(b.material, b.textures, b.complexity, b.lights);
    }
};

/// All looks of a scene, each stored once, so that items with the same look are drawn together.
class Looks {
public:
    explicit Looks(NodeRecords& records)
        : m_records(records)
    {
    }
    Looks(const Looks&) = delete;
    Looks& operator=(const Looks&) = delete;
    ~Looks() = default;

    /// Returns the number of that look and counts one more use.
    Id use(const Look& look);
    void useAgain(Id id) noexcept { ++m_slots[id].uses; }
    void release(Id id);
    [[nodiscard]] const Look& operator[](Id id) const noexcept { return m_slots[id].look; }
    [[nodiscard]] std::size_t bytes() const noexcept;

private:
    struct Slot {
        Look look;
        std::uint32_t uses = 0;
    };

    NodeRecords& m_records;
    SlotTable<Slot> m_slots;
    std::map<Look, Id> m_ids;
};

} // namespace meridane
