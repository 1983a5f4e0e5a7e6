#pragma once

#include <QString>

#include <initializer_list>
#include <span>

class DvSFieldWidget;
class QLineEdit;

// A line that holds one component of a value.
namespace orvane {

/// The text of a number in every line of a component: six significant digits.
[[nodiscard]] QString numberText(float value);
/// Shows a number in that format.
void showNumber(QLineEdit* line, float value);
/// The number in a line; 0 for a text that is none, an empty one included.
[[nodiscard]] float numberIn(const QLineEdit* line);

/// Limits the line to floats, with six decimals at most.
void acceptFloats(QLineEdit* line);
/// Return in the line always writes the value; leaving the line writes a typed text. Return in a line with typed text
/// does both.
void applyFromLine(QLineEdit* line, DvSFieldWidget* editor);

/// Shows the beginning of each text.
void resetCursors(std::span<QLineEdit* const> lines);
inline void resetCursors(std::initializer_list<QLineEdit*> lines)
{
    resetCursors({lines.begin(), lines.size()});
}

/// Whether any of the lines holds typed text that hasn't been replaced since.
[[nodiscard]] bool anyModified(std::span<QLineEdit* const> lines);
[[nodiscard]] inline bool anyModified(std::initializer_list<QLineEdit*> lines)
{
    return anyModified({lines.begin(), lines.size()});
}

} // namespace orvane
