#include "orvane/app/look/Look.h"

#include <QFontMetrics>
#include <QStyleOption>

#include <algorithm>
#include <array>
#include <cmath>

namespace orvane::look {

namespace {

/// A tint on light and on dark backgrounds.
struct Pair {
    QColor onLight;
    QColor onDark;
};

Pair colorsOf(Tint tint)
{
    switch (tint) {
    case Tint::AxisX:
        return {QColor(0xC6, 0x28, 0x28), QColor(0xFF, 0x7A, 0x70)};
    case Tint::AxisY:
        return {QColor(0x25, 0x75, 0x2A), QColor(0x7C, 0xCF, 0x6E)};
    case Tint::AxisZ:
        return {QColor(0x15, 0x65, 0xC0), QColor(0x74, 0xB2, 0xFF)};
    case Tint::AxisW:
        return {QColor(0x7B, 0x1F, 0xA2), QColor(0xCF, 0x94, 0xEF)};
    case Tint::Changed:
    case Tint::TypeList:
        return {QColor(0x00, 0x69, 0x5C), QColor(0x5F, 0xD3, 0xC3)};
    case Tint::Information:
    case Tint::TypeNumber:
        return {QColor(0x1F, 0x5F, 0xA8), QColor(0x8A, 0xBC, 0xF5)};
    case Tint::Warning:
        return {QColor(0x8F, 0x54, 0x00), QColor(0xF0, 0xB0, 0x40)};
    case Tint::Error:
        return {QColor(0xB3, 0x26, 0x1E), QColor(0xFF, 0x8A, 0x80)};
    case Tint::TypeChoice:
        return {QColor(0x6A, 0x3F, 0xB5), QColor(0xB9, 0xA0, 0xF2)};
    case Tint::TypeColor:
        return {QColor(0xAD, 0x14, 0x57), QColor(0xF4, 0x8F, 0xB8)};
    case Tint::TypeText:
        return {QColor(0x4A, 0x6B, 0x12), QColor(0xB3, 0xCF, 0x76)};
    case Tint::TypeFile:
        return {QColor(0x7A, 0x53, 0x1B), QColor(0xDD, 0xB8, 0x84)};
    }
    return {};
}

std::array<double, 3> numbersOf(const QColor& color)
{
    return {static_cast<double>(color.redF()), static_cast<double>(color.greenF()), static_cast<double>(color.blueF())};
}

double linear(double component)
{
    return component <= 0.04045 ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    const std::array rgb = numbersOf(color);
    return 0.2126 * linear(rgb[0]) + 0.7152 * linear(rgb[1]) + 0.0722 * linear(rgb[2]);
}

// Moves the colour towards black or white, by the smallest step that gives it the contrast. One of the two always can.
QColor withContrast(const QColor& color, const QColor& background, double wanted)
{
    constexpr int steps = 20;
    const QColor end = isDark(background) ? QColor(Qt::white) : QColor(Qt::black);
    for (int step = 0; step < steps; ++step) {
        QColor moved = mixed(color, end, static_cast<double>(step) / steps);
        if (contrast(moved, background) >= wanted)
            return moved;
    }
    return end;
}

} // namespace

double contrast(const QColor& left, const QColor& right)
{
    const auto [dark, light] = std::minmax({luminance(left), luminance(right)});
    return (light + 0.05) / (dark + 0.05);
}

bool isDark(const QColor& background)
{
    return contrast(Qt::white, background) > contrast(Qt::black, background);
}

bool isDark(const QPalette& palette)
{
    return luminance(palette.color(QPalette::Window)) < luminance(palette.color(QPalette::WindowText));
}

QColor textColor(Tint tint, const QColor& background)
{
    const Pair colors = colorsOf(tint);
    return withContrast(isDark(background) ? colors.onDark : colors.onLight, background, textContrast);
}

QColor markColor(Tint tint, const QColor& background)
{
    const Pair colors = colorsOf(tint);
    return withContrast(isDark(background) ? colors.onDark : colors.onLight, background, markContrast);
}

QColor quietColor(const QColor& text, const QColor& background)
{
    return withContrast(mixed(text, background, 0.4), background, textContrast);
}

QColor washColor(Tint tint, const QColor& background)
{
    const Pair colors = colorsOf(tint);
    return mixed(background, isDark(background) ? colors.onDark : colors.onLight, 0.15);
}

QPalette::ColorGroup groupOf(const QStyleOption& option)
{
    if ((option.state & QStyle::State_Enabled) == 0)
        return QPalette::Disabled;
    return (option.state & QStyle::State_Active) != 0 ? QPalette::Normal : QPalette::Inactive;
}

QColor mixed(const QColor& from, const QColor& to, double part)
{
    const std::array first = numbersOf(from);
    const std::array second = numbersOf(to);
    const auto mix = [&](std::size_t i) { return static_cast<float>(first.at(i) * (1 - part) + second.at(i) * part); };
    return QColor::fromRgbF(mix(0), mix(1), mix(2));
}

int unit(const QFontMetrics& font)
{
    return std::max(2, (font.height() + 2) / 4);
}

int rowHeight(const QFontMetrics& font)
{
    return font.height() + 2 * unit(font);
}

int iconSize(const QFontMetrics& font)
{
    return 4 * unit(font);
}

} // namespace orvane::look
