#pragma once

/// The value range of one field, as a slider takes it; all zero when new.
///
/// The record serves every numeric type: an editor reads the pair of bounds of its own type. Bounds of double fields
/// are as coarse as those of float fields, which is enough for where a slider starts.
struct FieldRange {
    float floatMin = 0.0F;
    float floatMax = 0.0F;
    float doubleMin = 0.0F;
    float doubleMax = 0.0F;
    int intMin = 0;
    int intMax = 0;
    /// Whether the bounds are hard. If not, the range grows to whatever value comes.
    bool bounded = false;
};
