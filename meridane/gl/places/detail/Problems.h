#pragma once

#include "meridane/gl/places/detail/NodeRecord.h"

#include <array>
#include <string>

namespace meridane {

/// What can be wrong with a node for drawing.
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

/// Reports what is wrong with nodes: each problem of a node once, until it is mended and comes back. Of many nodes with
/// the same problem only the first are reported, so that a broken scene doesn't bury everything else.
class Problems {
public:
    /// How many nodes are reported for each problem.
    static constexpr int maxReports = 20;

    /// Notes whether a node has a problem now. `text` gives what to say about it, behind the name of the node.
    template <typename Text>
    void note(NodeRecord& record, Problem problem, bool isThere, Text text)
    {
        if (isNews(record, problem, isThere))
            report(record, problem, text());
    }
    /// For another scene all is reported anew.
    void forget() { m_counts.fill(0); }

private:
    static bool isNews(NodeRecord& record, Problem problem, bool isThere);
    void report(const NodeRecord& record, Problem problem, const std::string& text);

    std::array<int, static_cast<std::size_t>(Problem::Count)> m_counts{};
};

} // namespace meridane
