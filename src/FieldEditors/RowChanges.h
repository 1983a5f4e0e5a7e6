#pragma once

class NxMField;

// Changes of rows that more than one command or editor makes.
namespace orvane {

/// Inserts `count` rows into a list at `start`. False if they don't fit in memory, which the toolkit reports: the rows
/// at `start` are then the former ones and must not be overwritten.
[[nodiscard]] bool openRows(NxMField& field, int start, int count);

/// Exchanges two rows through their text form.
void swapRowTexts(NxMField& field, int first, int second);

} // namespace orvane
