#pragma once

#include "meridane/base/values/VbColor.h"

/// How a scene is shown, apart from what the scene itself defines.
struct NxDrawingStyle {
    /// How surfaces are drawn.
    enum Surfaces {
        SOLID, ///< filled
        WIREFRAME, ///< the sides of the triangles only
    };

    Surfaces surfaces = SOLID;
    /// A grid on the ground, the plane of x and z.
    bool grid = true;
    /// The three axes through the origin: x red, y green, z blue.
    bool axes = true;
    /// A box around each mesh.
    bool boundingBoxes = false;

    /// The background, from the bottom to the top of the picture.
    VbColor backgroundBottom{0.30F, 0.32F, 0.35F};
    VbColor backgroundTop{0.16F, 0.17F, 0.19F};
    VbColor gridColor{0.45F, 0.46F, 0.48F};
    VbColor boundingBoxColor{0.9F, 0.75F, 0.2F};
    /// The line around the selection.
    VbColor outlineColor{1.0F, 0.6F, 0.1F};
    /// The line around other nodes that are selected, half as wide.
    VbColor otherOutlineColor{0.85F, 0.62F, 0.36F};
    /// The width of the line around the selection in points of the screen (see `NxSceneDrawing::draw`).
    float outlineWidth = 2;
    /// The size of points of meshes, in the same unit.
    float pointSize = 4;
    /// The inside of marked points (see `NxSceneDrawing::setMarkedPoints`), and the border around it.
    VbColor markColor{1, 1, 1};
    VbColor markBorderColor{0, 0, 0};
    /// The size of marked points with their border, in the same unit.
    float markSize = 8;

    friend bool operator==(const NxDrawingStyle&, const NxDrawingStyle&) noexcept = default;
};
