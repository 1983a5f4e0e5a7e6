#pragma once

#include <array>
#include <cstddef>

namespace orvane {

/// What a tap passes on. The receiver may use what another tap listens to, or a tap of the same kind below.
enum class Tapped { Text, Error, Message };

/// Marks, while it lives, that this thread is passing something on that the log has already.
class Passing {
public:
    explicit Passing(Tapped what) noexcept
        : m_isOn(s_isOn[static_cast<std::size_t>(what)])
        , m_wasOn(m_isOn)
    {
        m_isOn = true;
    }
    Passing(const Passing&) = delete;
    Passing& operator=(const Passing&) = delete;
    ~Passing() { m_isOn = m_wasOn; }

    [[nodiscard]] static bool isOn(Tapped what) noexcept { return s_isOn[static_cast<std::size_t>(what)]; }

private:
    inline static thread_local std::array<bool, 3> s_isOn{};

    bool& m_isOn;
    bool m_wasOn;
};

} // namespace orvane
