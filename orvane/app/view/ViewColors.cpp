#include "orvane/app/view/ViewColors.h"

#include "meridane/gl/painting/NxDrawingStyle.h"

#include <QPalette>

namespace {

VbColor toColor(const QColor& color)
{
    return {color.redF(), color.greenF(), color.blueF()};
}

QColor mixed(const QColor& first, const QColor& second, float share)
{
    const auto part = [share](float from, float to) { return from + (to - from) * share; };
    return QColor::fromRgbF(
        part(first.redF(), second.redF()), part(first.greenF(), second.greenF()), part(first.blueF(), second.blueF()));
}

} // namespace

void orvane::setViewColors(NxDrawingStyle& style, const QPalette& palette)
{
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    // Between the window's colour and a blue grey, so that neither white nor black surfaces vanish in it.
    const bool isDark = window.lightnessF() < text.lightnessF();
    const QColor sky(isDark ? QColor(38, 42, 50) : QColor(150, 163, 180));
    const QColor ground(isDark ? QColor(64, 68, 76) : QColor(220, 225, 231));
    constexpr float share = 0.2F;
    style.backgroundTop = toColor(mixed(sky, window, share));
    style.backgroundBottom = toColor(mixed(ground, window, share));
    style.gridColor = toColor(isDark ? QColor(104, 108, 116) : QColor(150, 156, 164));
    style.boundingBoxColor = toColor(isDark ? QColor(230, 190, 60) : QColor(120, 84, 0));
    style.outlineColor = toColor(isDark ? QColor(255, 153, 26) : QColor(235, 110, 0));
}
