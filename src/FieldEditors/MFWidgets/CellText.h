#pragma once

class QFontMetrics;
class QString;

namespace orvane {

/// What a cell shows of a text in `room` pixels: all of it, or as many characters as fit with "..." behind them, at
/// least one. The work depends on what is shown, not on the length of the text.
[[nodiscard]] QString fittingText(const QString& text, const QFontMetrics& metrics, int room);

} // namespace orvane
