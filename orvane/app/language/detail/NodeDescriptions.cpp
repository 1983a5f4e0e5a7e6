#include "orvane/app/language/ToolkitText.h"

#include <QtGlobal>

#include <array>

namespace orvane {
namespace {

// Sentences of docs/nodes.md.
constexpr std::array nodeSentences{
    QT_TRANSLATE_NOOP(
        "NodeDescriptions", "The detail with which the surfaces and textures that follow in the group are drawn."),
    QT_TRANSLATE_NOOP("NodeDescriptions",
        "What value is measured against: the object at any distance, the picture, or neither, and then only boxes are "
        "drawn."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "The detail of surfaces, from coarse and fast (0) to fine and slow (1)."),
    QT_TRANSLATE_NOOP(
        "NodeDescriptions", "The quality of textures, from none drawn (0) to all kinds of smoothing (1)."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Light from very far away, the same everywhere, such as that of the sun."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Whether the light shines."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "How bright the light is, from dark (0) to full (1)."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "The colour of the light."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Where the rays go, as a vector of any length but 0."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Has one field of every field class to try editors with, and draws nothing."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A set of bits with names."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A boolean."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A rectangle."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A box of 16-bit integers."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A colour."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A colour with opacity."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A 64-bit number."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "One of four names."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "The path of a file."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A 32-bit number."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A small or large image."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A 32-bit integer."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A 4 by 4 matrix."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A name."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A plane."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A turn about an axis."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A 16-bit integer."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A text."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A time."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A 32-bit integer that is never negative."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A 16-bit integer that is never negative."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Two numbers."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Two 32-bit integers."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Two 16-bit integers."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Three numbers."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Three 16-bit integers."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Four numbers."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Booleans."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Colours."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Colours with opacity."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "64-bit numbers."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Some of four names."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "32-bit numbers."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "32-bit integers."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "4 by 4 matrices."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Names."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Planes."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Turns, each about an axis."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "16-bit integers."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Texts."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "32-bit integers that are never negative."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "16-bit integers that are never negative."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Vectors of two numbers."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Vectors of two 32-bit integers."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Vectors of two 16-bit integers."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Vectors of three numbers."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Vectors of four numbers."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A node that holds other nodes, in order."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "The look of the surfaces that follow in the group."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "The part of the ambient light that is reflected."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "The colour of the surface in direct light."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "The colour of highlights."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "The light that the surface gives off by itself."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "How sharp highlights are, from wide (0) to small and sharp (1)."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "How much shines through, from opaque (0) to invisible (1)."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "How metallic the surface is, from plastic or stone (0) to bare metal (1)."),
    QT_TRANSLATE_NOOP("NodeDescriptions",
        "How rough the surface is, from a mirror (0) to dull (1); below 1, or with some metalness, specularColor and "
        "shininess have no effect."),
    QT_TRANSLATE_NOOP(
        "NodeDescriptions", "Whether triangles are also seen from behind, where their corners are in clockwise order."),
    QT_TRANSLATE_NOOP("NodeDescriptions",
        "The opacity below which nothing is drawn, while all else is opaque; 0 draws every opacity."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A group whose children are transformed by a matrix."),
    QT_TRANSLATE_NOOP(
        "NodeDescriptions", "The matrix from the children to the group above, with the translation in the last row."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Triangles, lines or points with shared corners."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "The corners."),
    QT_TRANSLATE_NOOP("NodeDescriptions",
        "The direction of unit length that the surface faces at each corner: one for each position, or none for flat "
        "triangles that are lit by their own normals."),
    QT_TRANSLATE_NOOP("NodeDescriptions",
        "The place in the texture for each corner, from 0 to 1 across it with (0, 0) at the lower left: one for each "
        "position, or none."),
    QT_TRANSLATE_NOOP("NodeDescriptions",
        "Colours that replace the diffuse colour and the transparency of the material: one for each position, one for "
        "all, or none."),
    QT_TRANSLATE_NOOP("NodeDescriptions",
        "The positions in the order of drawing, counted from 0: three for each triangle (counter-clockwise as seen "
        "from outside), two for each line, one for each point, or none at all for all positions in order."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "What the indices make."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A camera that sees things of the same size at any distance."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Where the camera is."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "How the camera is turned from looking along negative z with y upwards."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "How close to the camera a thing may be and still be seen."),
    QT_TRANSLATE_NOOP(
        "NodeDescriptions", "How far from the camera a thing may be and still be seen, more than nearDistance."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "The height of what is seen."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A camera that sees distant things smaller."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "The angle between the lower and the upper border of the picture."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A lamp that shines into all directions."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Where the lamp is."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "How the light fades with the distance d: it is divided by x + y d + z d²."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A lamp that shines into a cone."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Where the lamp is, the tip of the cone."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "The axis of the cone, as a vector of any length but 0."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "The angle between the axis and the side of the cone."),
    QT_TRANSLATE_NOOP(
        "NodeDescriptions", "How the light fades from the axis to the side, from not at all (0) to most (1)."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A group that shows one of its children, none or all."),
    QT_TRANSLATE_NOOP("NodeDescriptions",
        "The index of the shown child, counted from 0; -1 or an index without a child shows none, -3 shows all."),
    QT_TRANSLATE_NOOP(
        "NodeDescriptions", "An image on the surfaces that follow in the group, placed by their texture coordinates."),
    QT_TRANSLATE_NOOP("NodeDescriptions",
        "The file of the image, relative to the folder of the scene file; it is used when image is empty."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "The image itself, with the row at the bottom first."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "What lies to the left and right of the image."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "What lies below and above the image."),
    QT_TRANSLATE_NOOP("NodeDescriptions",
        "What the image changes: the colour, the normals, or metalness (blue) and roughness (green)."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "A group whose children are scaled and turned about a point, then moved."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "How far the children are moved along x, y and z."),
    QT_TRANSLATE_NOOP("NodeDescriptions",
        "How the children are turned: about an axis of any length but 0, counter-clockwise when it points at the "
        "viewer."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "The factors along x, y and z, of which a negative one mirrors."),
    QT_TRANSLATE_NOOP(
        "NodeDescriptions", "The point about which the children are scaled and turned, in their own units."),
    QT_TRANSLATE_NOOP("NodeDescriptions", "Stands for a node whose class isn't known here, and keeps all of it."),
};

} // namespace

std::span<const char* const> nodeDescriptions() noexcept
{
    return nodeSentences;
}

} // namespace orvane
