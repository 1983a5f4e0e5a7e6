#pragma once

#include <limits>
#include <string_view>

/// \file
/// What node classes declare of their fields besides names and defaults.

/// What the numbers of a field measure.
enum class NxUnit {
    None, ///< counts, factors, parts of a whole, and whatever isn't a number
    Radians, ///< angles; in a rotation only the angle
    Metres, ///< lengths in the scene: one scene unit is taken for a metre
    Percent, ///< hundredths of a whole
    Seconds, ///< times
};

/// What a node class declares of one of its fields, for the people who edit it. The value isn't checked against the
/// ranges: a field takes whatever its class can hold.
struct NxFieldFacts {
    /// The limit of a range that has none.
    static constexpr double infinity = std::numeric_limits<double>::infinity();

    /// One sentence with a full stop; empty if the class declares none. Valid as long as the class.
    std::string_view description;
    NxUnit unit = NxUnit::None; ///< what the numbers of the value measure

    /// The numbers that make sense: all others are ignored or limited by what uses the field. It holds for each number
    /// of a value alone, in a rotation for the angle only. Infinite where there is no limit.
    double hardMinimum = -infinity;
    double hardMaximum = infinity; ///< see `hardMinimum`
    /// The numbers that are useful; within the hard range, and equal to it if the class declares no other.
    double softMinimum = -infinity;
    double softMaximum = infinity; ///< see `softMinimum`
    /// Whether the hard range is open, so that the limit itself makes no sense either.
    bool excludesMinimum = false;
    bool excludesMaximum = false; ///< see `excludesMinimum`
    /// By how much a step changes a number; 0 if that depends on the number.
    double step = 0;

    /// Whether the text is the path of a file.
    bool isFile = false;

    /// False for NaN.
    [[nodiscard]] constexpr bool isInHardRange(double number) const noexcept
    {
        return (excludesMinimum ? number > hardMinimum : number >= hardMinimum)
            && (excludesMaximum ? number < hardMaximum : number <= hardMaximum);
    }
    /// False for NaN.
    [[nodiscard]] constexpr bool isInSoftRange(double number) const noexcept
    {
        return number >= softMinimum && number <= softMaximum && isInHardRange(number);
    }
    /// Whether there is a hard limit at one end at least.
    [[nodiscard]] constexpr bool hasHardRange() const noexcept
    {
        return hardMinimum > -infinity || hardMaximum < infinity;
    }
    /// Whether there is a soft limit at one end at least.
    [[nodiscard]] constexpr bool hasSoftRange() const noexcept
    {
        return softMinimum > -infinity || softMaximum < infinity;
    }
};

namespace meridane {

/// The symbol of a unit as it follows a number, such as "rad"; empty for none.
[[nodiscard]] std::string_view symbolOf(NxUnit unit) noexcept;

} // namespace meridane
