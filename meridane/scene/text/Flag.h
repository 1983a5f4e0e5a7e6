#pragma once

namespace meridane {

/// A boolean for contiguous lists; `std::vector` would pack `bool` into bits.
class Flag {
public:
    constexpr Flag() noexcept = default;
    /// A flag with that state.
    constexpr Flag(bool set) noexcept // NOLINT(google-explicit-constructor): it replaces bool everywhere
        : m_set(set)
    {
    }
    /// The state of the flag.
    constexpr operator bool() const noexcept { return m_set; } // NOLINT(google-explicit-constructor)

private:
    bool m_set = false;
};

} // namespace meridane
