#pragma once

#include <QColor>
#include <QString>

#include <array>
#include <optional>

namespace orvane {

/// Red, green, blue and opacity. From 0 to 1 in what a screen shows; numbers outside are kept.
using ColorNumbers = std::array<double, 4>;

/// Hue in degrees from 0 to 360, saturation and value from 0 to 1. The value of a colour that is brighter than the
/// screen's white is more than 1.
struct HueNumbers {
    double hue = 0;
    double saturation = 0;
    double value = 0;
};

/// The hue of a grey is `hueOfGrey`.
[[nodiscard]] HueNumbers toHue(const ColorNumbers& color, double hueOfGrey = 0);
[[nodiscard]] ColorNumbers fromHue(const HueNumbers& color, double opacity);

/// The nearest colour that a screen shows; black for numbers that aren't finite.
[[nodiscard]] QColor shownColor(const ColorNumbers& color);

/// Such as "#ff8000", with two more digits for the opacity if `hasOpacity`.
[[nodiscard]] QString toHex(const ColorNumbers& color, bool hasOpacity);
/// Reads three, four, six or eight hexadecimal digits, with or without "#". A text without opacity has that of
/// `present`. Components whose two digits are those of `present` aren't changed, so that a text which isn't edited
/// changes nothing. Nothing for other texts.
[[nodiscard]] std::optional<ColorNumbers> fromHex(const QString& text, const ColorNumbers& present);

} // namespace orvane
