#pragma once

class NxMField;

// Changes of rows that more than one command or editor makes.
namespace orvane {

/// Opens `count` rows of a list at `start`. False when they don't fit in memory, which the toolkit reports: then the
/// rows that stand there hold values that must not be written over.
[[nodiscard]] bool openRows(NxMField& field, int start, int count);

/// Exchanges two rows through their text form.
void swapRowTexts(NxMField& field, int first, int second);

} // namespace orvane
