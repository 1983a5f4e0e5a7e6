#pragma once

#include <array>
#include <cstddef>
#include <unordered_set>

class NxField;
class NxNode;
struct NxSceneProblem;

namespace meridane {

/// What a query can't find out from one node: which nodes apply to nothing, and which files don't exist. The caller
/// takes both from a check of the scene, so that no query opens a file.
///
/// Nodes and fields are known by their addresses, which are never looked into.
class QueryFacts {
public:
    /// Adds what a problem says; others than unused nodes and missing files say nothing. Of a problem that many
    /// siblings share, only those from `first` on are added, `count` at most, so that a caller can pause. The scene
    /// must not have changed since it was checked. Returns whether there are more of them.
    bool add(const NxSceneProblem& problem, std::size_t first = 0, std::size_t count = npos);

    /// Whether the node applies to nothing: a material, texture, complexity or light that nothing follows, or a group
    /// with nothing in it.
    [[nodiscard]] bool isUnused(const NxNode& node) const { return contains(m_unused, &node); }
    /// Whether the field names a file that doesn't exist.
    [[nodiscard]] bool isMissing(const NxField& field) const { return contains(m_missing, &field); }

private:
    static constexpr std::size_t npos = static_cast<std::size_t>(-1);
    static constexpr std::size_t partCount = 256;
    /// Several tables, so that none takes long to grow.
    using Addresses = std::array<std::unordered_set<const void*>, partCount>;

    [[nodiscard]] static std::size_t partOf(const void* address) noexcept;
    [[nodiscard]] static bool contains(const Addresses& addresses, const void* address);

    Addresses m_unused;
    Addresses m_missing;
};

} // namespace meridane
