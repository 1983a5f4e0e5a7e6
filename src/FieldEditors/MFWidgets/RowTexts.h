#pragma once

class NxMField;
class QString;

// Rows by the text form of their values, which every list has.
namespace orvane {

/// The text form of a row's value; empty for a row or a second column that doesn't exist, and without a field.
[[nodiscard]] QString rowText(const NxMField* field, int row, int column);
/// Exchanges two rows through their text form; nothing happens when one doesn't exist, or without a field.
void swapExistingRows(NxMField* field, int first, int second);

} // namespace orvane
