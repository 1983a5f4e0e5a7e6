#pragma once

#include "app/AppScenes.h"

#include "meridane/gl/painting/NxDrawingStyle.h"

#include <QColor>
#include <QImage>

#include <cmath>

/// Scenes for the tests of the view, and what to look for in its pictures.
namespace ViewScenes {

/// Two squares that face the viewer and shine by themselves, whatever the light: a red one on the left, a green one on
/// the right, each of size 2, with their centres at -2 and 2. Between them is nothing.
inline const char* const squaresText
    = "#mrd 1.0\n"
      "PerspectiveCamera \"camera\" { position = 2 0 10 }\n"
      "Group \"left\" {\n"
      "  Material \"red\" { ambientColor = 0 0 0; diffuseColor = 0 0 0; emissiveColor = 1 0 0 }\n"
      "  Mesh \"redSquare\" {\n"
      "    positions = [-3 -1 0, -1 -1 0, -1 1 0, -3 1 0]\n    indices = [0, 1, 2, 0, 2, 3]\n  }\n"
      "}\n"
      "Transform \"right\" {\n"
      "  translation = 2 0 0\n"
      "  Material \"green\" { ambientColor = 0 0 0; diffuseColor = 0 0 0; emissiveColor = 0 1 0 }\n"
      "  Mesh \"greenSquare\" {\n"
      "    positions = [-1 -1 0, 1 -1 0, 1 1 0, -1 1 0]\n    indices = [0, 1, 2, 0, 2, 3]\n  }\n"
      "}\n";

inline NxRef<NxGroup> squares()
{
    return AppScenes::read(squaresText);
}

/// The style without grid and axes, which run through the squares.
inline NxDrawingStyle withoutLines(NxDrawingStyle style)
{
    style.grid = false;
    style.axes = false;
    return style;
}

inline bool isLike(const QColor& left, const QColor& right)
{
    constexpr int tolerance = 24;
    return std::abs(left.red() - right.red()) <= tolerance && std::abs(left.green() - right.green()) <= tolerance
        && std::abs(left.blue() - right.blue()) <= tolerance;
}

/// How many pixels have that colour, about.
inline int count(const QImage& picture, const QColor& color)
{
    int found = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            found += isLike(picture.pixelColor(x, y), color) ? 1 : 0;
    }
    return found;
}

} // namespace ViewScenes
