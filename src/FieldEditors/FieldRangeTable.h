#pragma once

#include "FieldEditors/FieldRange.h"

#include <QMap>
#include <QString>

/// The ranges that the sliders of numeric fields start with, by node and field name: a scene field itself carries none.
class FieldRangeTable {
public:
    /// Parses the compiled-in rows.
    FieldRangeTable();

    /// The range of a node's field; the all-zero, unbounded record when no row names it.
    ///
    /// The names are looked up run together without a separator, so any pair that yields the same text finds the row.
    [[nodiscard]] FieldRange lookup(const char* nodeName, const char* fieldName) const;

    /// The base in which the text of an integer is to be read: 16 for "0x" and at least one more character, 8 for "0"
    /// and exactly one more character, else 10. So "007" and "0" are decimal, and "0x" alone counts as octal.
    [[nodiscard]] static int detectRadix(const QString& text);

private:
    QMap<QString, FieldRange> m_ranges;
};
