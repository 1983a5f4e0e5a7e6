#include "meridane/base/ContentHash.h"

#include <new>

#include <xxhash.h>

namespace meridane {

namespace {

ContentHash toContentHash(const XXH128_hash_t& hash)
{
    return {hash.high64, hash.low64};
}

void appendDigits(std::string& text, std::uint64_t value)
{
    constexpr std::string_view digits = "0123456789abcdef";
    for (int shift = 60; shift >= 0; shift -= 4)
        text += digits[(value >> static_cast<unsigned>(shift)) & 0xFU];
}

} // namespace

std::string ContentHash::toText() const
{
    std::string text;
    appendDigits(text, high);
    appendDigits(text, low);
    return text;
}

ContentHash ContentHash::of(std::string_view content) noexcept
{
    return toContentHash(XXH3_128bits(content.data(), content.size()));
}

struct ContentHasher::State {
    std::unique_ptr<XXH3_state_t, decltype(&XXH3_freeState)> hash{XXH3_createState(), &XXH3_freeState};
};

ContentHasher::ContentHasher()
    : m_state(std::make_unique<State>())
{
    if (m_state->hash == nullptr)
        throw std::bad_alloc();
    XXH3_128bits_reset(m_state->hash.get());
}

ContentHasher::~ContentHasher() = default;

void ContentHasher::add(std::string_view part) noexcept
{
    XXH3_128bits_update(m_state->hash.get(), part.data(), part.size());
}

ContentHash ContentHasher::hash() const noexcept
{
    return toContentHash(XXH3_128bits_digest(m_state->hash.get()));
}

std::uint64_t shortHashOf(std::span<const std::byte> bytes) noexcept
{
    return XXH3_64bits(bytes.data(), bytes.size());
}

} // namespace meridane
