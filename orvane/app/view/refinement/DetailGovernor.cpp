#include "orvane/app/view/refinement/DetailGovernor.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

/// From the most detail to the least. Together with the pixels that become larger, edges are off by at most four pixels
/// down to the one of three pixels, which is fast enough for ten million triangles without a GPU.
constexpr std::array<PictureDetail, 11> detailSteps{
    {{1, 1}, {2, 1}, {3, 1}, {2, 2}, {3, 2}, {4, 2}, {6, 2}, {8, 2}, {12, 3}, {16, 3}, {24, 4}}};
constexpr std::size_t firstStep = 3;
/// More than this share of the wanted time is very slow, less than this share is fast.
constexpr double verySlowShare = 1.8;
constexpr double fastShare = 0.6;
constexpr int slowPictures = 2;
constexpr int fastPictures = 10;
constexpr qint64 retryMilliseconds = 5'000; // milliseconds

} // namespace

DetailGovernor::DetailGovernor(Clock clock)
    : m_clock(std::move(clock))
    , m_step(firstStep)
{
}

PictureDetail DetailGovernor::detail() const
{
    return detailSteps[m_step];
}

void DetailGovernor::note(double milliseconds)
{
    m_slow = milliseconds > wantedMilliseconds ? m_slow + 1 : 0;
    m_fast = milliseconds < wantedMilliseconds * fastShare ? m_fast + 1 : 0;
    if (m_slow >= slowPictures || milliseconds > wantedMilliseconds * verySlowShare) {
        m_slow = 0;
        m_step = std::min(m_step + 1, detailSteps.size() - 1);
        m_tooSlow = m_step;
        m_tooSlowUntil = m_clock() + retryMilliseconds;
    } else if (m_fast >= fastPictures) {
        m_fast = 0;
        if (m_step > 0 && (m_step > m_tooSlow || m_clock() >= m_tooSlowUntil))
            --m_step;
    }
}

void DetailGovernor::reset()
{
    m_step = firstStep;
    m_slow = 0;
    m_fast = 0;
    m_tooSlow = 0;
    m_tooSlowUntil = 0;
}
