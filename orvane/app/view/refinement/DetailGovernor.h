#pragma once

#include <QtGlobal>

#include <cstddef>
#include <functional>

/// How much detail a picture has.
struct PictureDetail {
    float error = 0; ///< how many pixels meshes may be off; 0 for full detail
    int divisor = 1; ///< of the picture's width and height

    friend bool operator==(const PictureDetail&, const PictureDetail&) noexcept = default;
};

/// Chooses the detail of the pictures of a view that moves, from the times that they take, so that there are 30 of them
/// a second.
///
/// Less detail follows at once when pictures take too long, more only after some that took much less; and what was too
/// slow isn't tried again for some seconds.
class DetailGovernor {
public:
    /// The time in milliseconds since any moment.
    using Clock = std::function<qint64()>;
    static constexpr double wantedMilliseconds = 30; ///< with some milliseconds left for showing the picture

    explicit DetailGovernor(Clock clock);

    [[nodiscard]] PictureDetail detail() const;
    /// A picture with that detail took so long.
    void note(double milliseconds);
    /// Starts again, for another scene.
    void reset();

private:
    Clock m_clock;
    std::size_t m_step;
    int m_slow = 0; // pictures in succession that took too long
    int m_fast = 0; // and those that took much less than wanted
    std::size_t m_tooSlow = 0; // the steps before this one were too slow
    qint64 m_tooSlowUntil = 0;
};
