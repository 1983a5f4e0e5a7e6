#pragma once

class QFontMetrics;
class QString;

namespace orvane {

/// The part of a text that a cell shows in `room` pixels: all of it, or as many characters as fit with "..." behind
/// them, at least one. The time depends on that part, not on the length of the text.
[[nodiscard]] QString fittingText(const QString& text, const QFontMetrics& metrics, int room);

} // namespace orvane
