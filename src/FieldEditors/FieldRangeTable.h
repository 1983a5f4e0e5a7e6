#pragma once

#include "FieldEditors/FieldRange.h"

#include <QString>

/// The ranges that the sliders of numeric fields start with, by the names of node and field. A scene field has no range
/// of its own.
class FieldRangeTable {
public:
    /// The range of a node's field; the all-zero, unbounded record if no row names it.
    ///
    /// Contract: the names are joined without a separator, so every pair that gives the same text finds the row.
    [[nodiscard]] static FieldRange lookup(const char* nodeName, const char* fieldName);

    /// The base of an integer's text: 16 for "0x" and at least one more character, 8 for "0" and exactly one more
    /// character, else 10.
    ///
    /// Contract: "007" and "0" are decimal, and "0x" alone is octal.
    [[nodiscard]] static int detectRadix(const QString& text);
};
