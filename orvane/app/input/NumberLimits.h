#pragma once

#include "meridane/scene/components/FieldComponents.h"

#include <QCoreApplication>
#include <QString>

#include <limits>

class NxField;

namespace orvane {

/// Which numbers an input takes, and which of them are unusual or make no sense. Bounds are inclusive; infinite ones
/// don't exist.
struct NumberLimits {
    Q_DECLARE_TR_FUNCTIONS(NumberLimits)

public:
    static constexpr double none = std::numeric_limits<double>::infinity();

    enum class Range {
        Usual,
        Unusual, ///< outside the soft bounds: in the colour of a warning
        Senseless, ///< outside the valid bounds: in the colour of an error
        Impossible, ///< not taken
    };

    /// The limits of a component of a field's values: those of its type, and what its node class declares. The
    /// default limits for a component that doesn't exist.
    [[nodiscard]] static NumberLimits of(const NxField& field, int component);

    double hardMinimum = -none; ///< A number below it isn't taken.
    double hardMaximum = none;
    double validMinimum = -none; ///< A number below it is taken, in the colour of an error.
    double validMaximum = none;
    double softMinimum = -none; ///< A number below it is taken, in the colour of a warning.
    double softMaximum = none;
    double step = 0; ///< of one press of an arrow key; 0 for one that fits the value
    bool isWhole = false; ///< Only whole numbers are taken.
    bool isAngle = false; ///< The numbers are angles in radians, so that `deg` converts.
    bool mayBeInfinite = false; ///< `inf` and `nan` are taken.

    [[nodiscard]] Range rangeOf(double number) const;
    /// Why the number isn't taken, in a sentence; empty for one that is.
    [[nodiscard]] QString refusal(double number) const;
    /// The numbers that are taken, such as "a whole number from 0 to 65535". Bounds that nobody reaches, such as those
    /// of floating point types, are left out.
    [[nodiscard]] QString description() const;
    /// How much one press of an arrow key changes a value: `step`, or a hundredth of the value's order of magnitude,
    /// at least 1 for whole numbers. More than 0.
    [[nodiscard]] double stepFrom(double value) const;

private:
    [[nodiscard]] QString outOfReach(const QString& problem, const QString& boundText, double bound) const;
};

/// The shortest text of the C locale that a field of that type reads as this number.
[[nodiscard]] QString plainNumber(
    double number, meridane::FieldComponents::Number type = meridane::FieldComponents::Number::Double);

} // namespace orvane
