#include "orvane/app/view/ViewColors.h"

#include "orvane/app/look/Look.h"

#include "meridane/gl/geometry/NxViewpoint.h"
#include "meridane/gl/painting/NxDrawingStyle.h"

#include <QLinearGradient>
#include <QPalette>

namespace {

VbColor toColor(const QColor& color)
{
    return {color.redF(), color.greenF(), color.blueF()};
}

QColor toColor(const VbColor& color)
{
    return QColor::fromRgbF(color[0], color[1], color[2]);
}

} // namespace

void orvane::setViewColors(NxDrawingStyle& style, const QPalette& palette, ViewBackground background)
{
    const bool isAsWindow = background == ViewBackground::AsWindow;
    const bool isDark = isAsWindow ? orvane::look::isDark(palette) : background == ViewBackground::Dark;
    // Between the window's colour and a blue grey, so that neither white nor black surfaces vanish in it. One that is
    // chosen is lighter or darker, for lines and points that vanish in the window's.
    const QColor window = isAsWindow ? palette.color(QPalette::Active, QPalette::Window)
        : isDark                     ? QColor(Qt::black)
                                     : QColor(Qt::white);
    const QColor sky(isDark ? QColor(38, 42, 50) : QColor(150, 163, 180));
    const QColor ground(isDark ? QColor(64, 68, 76) : QColor(220, 225, 231));
    const double share = isAsWindow ? 0.2 : 0.7;
    style.backgroundTop = toColor(orvane::look::mixed(sky, window, share));
    style.backgroundBottom = toColor(orvane::look::mixed(ground, window, share));
    style.gridColor = toColor(isDark ? QColor(104, 108, 116) : QColor(150, 156, 164));
    style.boundingBoxColor = toColor(isDark ? QColor(230, 190, 60) : QColor(120, 84, 0));
    style.otherOutlineColor = toColor(isDark ? QColor(214, 160, 96) : QColor(176, 104, 40));
    style.outlineColor = toColor(isDark ? QColor(255, 153, 26) : QColor(235, 110, 0));
}

QLinearGradient orvane::viewBackground(const NxDrawingStyle& style, int height)
{
    QLinearGradient background(0, 0, 0, height);
    background.setColorAt(0, toColor(style.backgroundTop));
    background.setColorAt(1, toColor(style.backgroundBottom));
    return background;
}

NxViewpoint orvane::firstViewpoint()
{
    NxViewpoint viewpoint;
    viewpoint.lookAlong(VbVec3f(-1, -0.7F, -1.4F), VbVec3f(0, 1, 0));
    return viewpoint;
}
