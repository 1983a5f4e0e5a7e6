#pragma once

#include "meridane/base/values/VbColor.h"
#include "meridane/gl/painting/NxSection.h"

/// How a scene is shown, apart from what the scene itself defines.
struct NxDrawingStyle {
    /// How surfaces are drawn.
    enum Surfaces {
        SOLID, ///< filled
        WIREFRAME, ///< the sides of the triangles only
    };

    /// What the colours of surfaces, lines and points show.
    enum Shading {
        SHADED, ///< materials and textures in the light
        UNLIT, ///< materials and textures as if light came evenly from everywhere
        NORMALS, ///< the normals in the scene: x, y and z from -1 to 1 are red, green and blue from none to full
        CHECKER, ///< the texture coordinates: eight squares from 0 to 1, u in red and v in green
        VERTEX_COLORS, ///< the colours of the meshes
    };

    Surfaces surfaces = SOLID; ///< how surfaces are drawn
    Shading shading = SHADED; ///< what their colours show
    /// The sides of the triangles over the surfaces.
    bool wires = false;
    /// A light at the viewer's eye beside those of the scene.
    bool headLight = false;
    /// Cuts away a part of the meshes.
    NxSection section;
    /// A grid on the ground, the plane of x and z.
    bool grid = true;
    /// The three axes through the origin: x red, y green, z blue.
    bool axes = true;
    /// A box around each mesh.
    bool boundingBoxes = false;

    /// The background, from the bottom to the top of the picture.
    VbColor backgroundBottom{0.30F, 0.32F, 0.35F};
    VbColor backgroundTop{0.16F, 0.17F, 0.19F}; ///< at the top of the picture
    VbColor gridColor{0.45F, 0.46F, 0.48F}; ///< of the lines of the grid
    VbColor boundingBoxColor{0.9F, 0.75F, 0.2F}; ///< of the boxes around meshes
    VbColor wireColor{0.02F, 0.03F, 0.05F}; ///< of `wires` and of the wireframe
    /// The line around the selection.
    VbColor outlineColor{1.0F, 0.6F, 0.1F};
    /// The line around other nodes that are selected, half as wide.
    VbColor otherOutlineColor{0.85F, 0.62F, 0.36F};
    /// The line around what a click would select, half as wide.
    VbColor hoverOutlineColor{0.95F, 0.95F, 0.95F};
    /// The border of these lines, which keeps them apart from surfaces of their own colour.
    VbColor outlineBorderColor{0.08F, 0.06F, 0.04F};
    /// The width of the line around the selection in points of the screen (see `NxSceneDrawing::draw`).
    float outlineWidth = 2;
    /// The size of points of meshes, in the same unit.
    float pointSize = 4;
    /// The inside of marked points (see `NxSceneDrawing::setMarkedPoints`), and the border around it.
    VbColor markColor{1, 1, 1};
    VbColor markBorderColor{0, 0, 0}; ///< see `markColor`
    /// The size of marked points with their border, in the same unit.
    float markSize = 8;

    /// Whether all members are equal.
    friend bool operator==(const NxDrawingStyle&, const NxDrawingStyle&) noexcept = default;
};
