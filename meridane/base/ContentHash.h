#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace meridane {

/// A hash of 128 bits by which two contents, such as those of files, are told apart: XXH3, as published at
/// https://github.com/Cyan4973/xxHash/blob/dev/doc/xxhash_spec.md. It doesn't protect against somebody who makes up
/// contents of the same hash.
struct ContentHash {
    std::uint64_t high = 0; ///< the upper 64 bits
    std::uint64_t low = 0; ///< the lower 64 bits

    /// Whether all bits are equal.
    friend bool operator==(const ContentHash&, const ContentHash&) = default;

    /// 32 hexadecimal digits, the high half first.
    [[nodiscard]] std::string toText() const;

    /// The hash of a content that is whole in memory.
    [[nodiscard]] static ContentHash of(std::string_view content) noexcept;
};

/// Hashes a content that comes in parts. The parts together have the hash of the whole.
class ContentHasher {
public:
    /// May throw `std::bad_alloc`.
    ContentHasher();
    ~ContentHasher();
    ContentHasher(const ContentHasher&) = delete;
    ContentHasher& operator=(const ContentHasher&) = delete;

    /// Appends a part of the content.
    void add(std::string_view part) noexcept;
    /// The hash of all parts so far.
    [[nodiscard]] ContentHash hash() const noexcept;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

/// A hash of 64 bits, of the same family, for tables and checksums.
[[nodiscard]] std::uint64_t shortHashOf(std::span<const std::byte> bytes) noexcept;

} // namespace meridane
