#pragma once

#include "meridane/gl/places/detail/NodeRecord.h"

#include <array>
#include <string>

namespace meridane {

/// The problems that drawing can have with a node.
enum class Problem : std::uint8_t {
    NoPositions,
    IncompletePrimitive,
    IndexOutOfRange,
    PositionNotFinite,
    NormalCount,
    ColorCount,
    CoordinateCount,
    Transform,
    NoImage,
    ImageTooLarge,
    ImageBytes,
    ImageFile,
    TooManyLights,
    Count, ///< the number of problems
};

/// Reports the problems of nodes. Each problem of a node is reported once, and again if it disappears and returns. Only
/// the first nodes with the same problem are reported, so that a broken scene doesn't hide all other messages.
class Problems {
public:
    /// The number of nodes reported for each problem.
    static constexpr int maxReports = 20;

    /// Stores whether a node has a problem now. `text` returns the message, which follows the name of the node.
    template <typename Text>
    void note(NodeRecord& record, Problem problem, bool isThere, Text text)
    {
        if (isNews(record, problem, isThere))
            report(record, problem, text());
    }
    /// Reports everything again, for another scene.
    void forget() { m_counts.fill(0); }

private:
    static bool isNews(NodeRecord& record, Problem problem, bool isThere);
    void report(const NodeRecord& record, Problem problem, const std::string& text);

    std::array<int, static_cast<std::size_t>(Problem::Count)> m_counts{};
};

} // namespace meridane
