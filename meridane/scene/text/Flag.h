#pragma once

namespace meridane {

/// A boolean that can stand in a contiguous list, where `bool` itself would be packed into bits.
class Flag {
public:
    constexpr Flag() noexcept = default;
    constexpr Flag(bool set) noexcept // NOLINT(google-explicit-constructor): it stands for a bool everywhere
        : m_set(set)
    {
    }
    constexpr operator bool() const noexcept { return m_set; } // NOLINT(google-explicit-constructor)

private:
    bool m_set = false;
};

} // namespace meridane
