#pragma once

#include <QColor>
#include <QPalette>

#include <array>

class QFontMetrics;
class QStyleOption;

/// The visual language of the tool: colours with a meaning, and sizes that follow the font. docs/look.md shows it.
namespace orvane::look {

/// What a colour means. A colour never says something alone: a letter, an icon, a font or a message says it too.
enum class Tint {
    AxisX, ///< x, red; also the colour component red
    AxisY, ///< y, green; also the colour component green
    AxisZ, ///< z, blue; also the colour component blue
    AxisW, ///< a fourth component: w, an angle, a distance, an opacity
    Changed, ///< a value that differs from its default
    Information,
    Warning, ///< a value outside its soft range, a missing file
    Error, ///< a value outside its hard range, a text that can't be taken
    TypeNumber, ///< fields of numbers, vectors, rotations and matrices
    TypeChoice, ///< fields of booleans, enumerations and bit masks
    TypeColor,
    TypeText, ///< fields of texts and names
    TypeFile, ///< fields of file paths and images
    TypeList,
};

/// All tints, in their order.
inline constexpr std::array allTints{Tint::AxisX, Tint::AxisY, Tint::AxisZ, Tint::AxisW, Tint::Changed,
    Tint::Information, Tint::Warning, Tint::Error, Tint::TypeNumber, Tint::TypeChoice, Tint::TypeColor, Tint::TypeText,
    Tint::TypeFile, Tint::TypeList};

/// The contrast that text needs against its background, and that a mark without text needs.
///
/// Source: Web Content Accessibility Guidelines 2.1, criteria 1.4.3 and 1.4.11.
inline constexpr double textContrast = 4.5;
inline constexpr double markContrast = 3;

/// The contrast of two opaque colours, from 1 (none) to 21 (black on white).
///
/// Source: Web Content Accessibility Guidelines 2.1, "contrast ratio" and "relative luminance".
[[nodiscard]] double contrast(const QColor& left, const QColor& right);

/// Whether light text suits the background better than dark text.
[[nodiscard]] bool isDark(const QColor& background);
/// Whether the palette is one of light text on dark backgrounds.
[[nodiscard]] bool isDark(const QPalette& palette);

/// The tint for text on that background, such as `QPalette::Base`, or `QPalette::Highlight` in a selected row. It is
/// made lighter or darker as far as its contrast needs it, whatever the background is.
[[nodiscard]] QColor textColor(Tint tint, const QColor& background);
/// The same for marks, lines and frames.
[[nodiscard]] QColor markColor(Tint tint, const QColor& background);
/// The text's colour, less prominent but still readable: for what is ignored, mixed, or beside the point.
[[nodiscard]] QColor quietColor(const QColor& text, const QColor& background);
/// A light tint of the background, on which the text of the palette keeps its contrast.
[[nodiscard]] QColor washColor(Tint tint, const QColor& background);

/// The group of a palette's colours for an item as it is painted.
[[nodiscard]] QPalette::ColorGroup groupOf(const QStyleOption& option);

/// A colour between two, from the first at 0 to the second at 1.
[[nodiscard]] QColor mixed(const QColor& from, const QColor& to, double part);

/// The unit of all distances, in pixels: a quarter of a line, 4 with a font of the usual size and at least 2.
[[nodiscard]] int unit(const QFontMetrics& font);
/// The height of a row of a table: a line with one unit above and below.
[[nodiscard]] int rowHeight(const QFontMetrics& font);
/// The side of an icon beside a line of text: 16 with a font of the usual size. The icons are drawn on a square of 16
/// units.
[[nodiscard]] int iconSize(const QFontMetrics& font);

} // namespace orvane::look
