#include "orvane/app/access/ColorName.h"

#include <QColor>
#include <QCoreApplication>

namespace {

struct ColorTexts {
    Q_DECLARE_TR_FUNCTIONS(ColorName)
};

QString greyName(int lightness)
{
    constexpr int black = 20;
    constexpr int dark = 90;
    constexpr int light = 170;
    constexpr int white = 240;
    if (lightness < black)
        return ColorTexts::tr("black");
    if (lightness < dark)
        return ColorTexts::tr("dark grey");
    if (lightness < light)
        return ColorTexts::tr("grey");
    return lightness < white ? ColorTexts::tr("light grey") : ColorTexts::tr("white");
}

// The hues where people begin to call a colour otherwise, in degrees.
QString hueName(int hue)
{
    if (hue < 15 || hue >= 345)
        return ColorTexts::tr("red");
    if (hue < 45)
        return ColorTexts::tr("orange");
    if (hue < 70)
        return ColorTexts::tr("yellow");
    if (hue < 165)
        return ColorTexts::tr("green");
    if (hue < 195)
        return ColorTexts::tr("cyan");
    if (hue < 255)
        return ColorTexts::tr("blue");
    return hue < 290 ? ColorTexts::tr("violet") : ColorTexts::tr("magenta");
}

} // namespace

QString orvane::colorName(const QColor& color)
{
    constexpr int greyish = 25; // of 255
    constexpr int black = 20;
    constexpr int dark = 80;
    constexpr int light = 190;
    constexpr int white = 245;
    const QColor hsl = color.toHsl();
    const int lightness = hsl.lightness();
    if (color.toHsv().saturation() < greyish || lightness < black || lightness > white)
        return greyName(lightness);
    const QString name = hueName(hsl.hslHue());
    if (lightness < dark)
        return ColorTexts::tr("dark %1").arg(name);
    return lightness > light ? ColorTexts::tr("light %1").arg(name) : name;
}
