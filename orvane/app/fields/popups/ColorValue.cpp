#include "orvane/app/fields/popups/ColorValue.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace orvane {

namespace {

int byteOf(double component)
{
    return std::isfinite(component) ? static_cast<int>(std::lround(std::clamp(component, 0.0, 1.0) * 255)) : 0;
}

} // namespace

HueNumbers toHue(const ColorNumbers& color, double hueOfGrey)
{
    const double highest = std::max({color[0], color[1], color[2]});
    const double range = highest - std::min({color[0], color[1], color[2]});
    if (!(range > 0) || !(highest > 0))
        return {hueOfGrey, 0, highest};
    double sextant = 0;
    if (highest == color[0])
        sextant = (color[1] - color[2]) / range;
    else if (highest == color[1])
        sextant = 2 + (color[2] - color[0]) / range;
    else
        sextant = 4 + (color[0] - color[1]) / range;
    return {sextant < 0 ? 60 * sextant + 360 : 60 * sextant, range / highest, highest};
}

ColorNumbers fromHue(const HueNumbers& color, double opacity)
{
    const auto component = [&color](double offset) {
        const double place = std::fmod(offset + color.hue / 60, 6);
        const double part = std::clamp(std::min(place, 4 - place), 0.0, 1.0);
        return color.value * (1 - color.saturation * part);
    };
    return {component(5), component(3), component(1), opacity};
}

QColor shownColor(const ColorNumbers& color)
{
    return {byteOf(color[0]), byteOf(color[1]), byteOf(color[2]), byteOf(color[3])};
}

QString toHex(const ColorNumbers& color, bool hasOpacity)
{
    QString text(u'#');
    for (std::size_t i = 0; i < (hasOpacity ? 4U : 3U); ++i)
        text += QStringLiteral("%1").arg(byteOf(color[i]), 2, 16, QLatin1Char('0'));
    return text;
}

std::optional<ColorNumbers> fromHex(const QString& text, const ColorNumbers& present)
{
    QString digits = text.trimmed();
    if (digits.startsWith(u'#'))
        digits.remove(0, 1);
    const auto isDigit
        = [](QChar c) { return (c >= u'0' && c <= u'9') || (c.toLower() >= u'a' && c.toLower() <= u'f'); };
    if (!std::all_of(digits.begin(), digits.end(), isDigit))
        return std::nullopt;
    if (digits.size() == 3 || digits.size() == 4) {
        QString doubled;
        for (const QChar digit : digits)
            doubled += QString(2, digit);
        digits = doubled;
    }
    if (digits.size() != 6 && digits.size() != 8)
        return std::nullopt;
    ColorNumbers color = present;
    for (qsizetype i = 0; i < digits.size() / 2; ++i) {
        const int byte = digits.mid(2 * i, 2).toInt(nullptr, 16);
        double& component = color[static_cast<std::size_t>(i)];
        if (byte != byteOf(component) || !std::isfinite(component))
            component = byte / 255.0;
    }
    return color;
}

} // namespace orvane
