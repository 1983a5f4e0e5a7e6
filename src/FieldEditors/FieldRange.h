#pragma once

/// The value range of one field, as a slider takes it; all zero when new.
///
/// An editor reads the pair of bounds of its own type. The bounds of double fields are floats, which is exact enough
/// for the initial range of a slider.
struct FieldRange {
    float floatMin = 0.0F;
    float floatMax = 0.0F;
    float doubleMin = 0.0F;
    float doubleMax = 0.0F;
    int intMin = 0;
    int intMax = 0;
    /// Whether the bounds are hard. If not, the range grows to any value.
    bool bounded = false;
};
