#pragma once

#include <QString>

struct FieldGroup;
class FieldRow;

namespace orvane {

/// What a tool tip says of a row of the field table: description, type, unit, range, default, and the beginning of the
/// value.
[[nodiscard]] QString fieldToolTip(const FieldRow& row);
/// What it says of a group.
[[nodiscard]] QString groupToolTip(const FieldGroup& group);
/// What the marks at the end of a row of that group say, such as "changed, ignored"; empty for none.
[[nodiscard]] QString marksText(const FieldRow& row, const FieldGroup& group);

} // namespace orvane
