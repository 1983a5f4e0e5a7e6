#include "meridane/scene/check/NxProblemKind.h"

namespace meridane {
namespace {

constexpr NxSeverity information = NxSeverity::Information;
constexpr NxSeverity warning = NxSeverity::Warning;
constexpr NxSeverity error = NxSeverity::Error;

// In the order of the kinds.
constexpr std::array<ProblemClass, problemKindCount> classes{{
    {"not-finite", error, "a number that is infinite or NaN", "Replace by the default"},
    {"out-of-range", warning, "a number outside the range of its field", "Limit to the range"},
    {"zero-scale", warning, "a scale factor of 0, which makes everything flat", ""},
    {"zero-axis", warning, "a rotation about an axis of length 0, or a direction of length 0", "Set to the default"},
    {"singular-matrix", warning, "a matrix that can't be inverted", ""},
    {"no-positions", warning, "a mesh without positions", ""},
    {"position-not-finite", error, "positions of a mesh that are infinite or NaN",
        "Remove what they belong to, and set them to 0"},
    {"index-out-of-range", error, "indices of a mesh that lead to no position", "Remove what they belong to"},
    {"incomplete-primitive", warning, "indices left over after the last whole triangle or line",
        "Remove the incomplete primitive"},
    {"normal-count", warning, "a number of normals that differs from the number of positions", ""},
    {"colour-count", warning, "a number of colours that differs from the number of positions", ""},
    {"coordinate-count", warning, "a number of texture coordinates that differs from the number of positions", ""},
    {"zero-normal", warning, "normals of length 0", "Compute them from the triangles"},
    {"normal-length", warning, "normals whose length differs from 1 by more than 1 per cent", "Normalise them"},
    {"degenerate-faces", warning, "triangles without area, and lines without length", "Remove them"},
    {"missing-file", error, "a file that doesn't exist", ""},
    {"unreadable-file", error, "a file that can't be read", ""},
    {"no-image", warning, "a texture without an image and without a file", ""},
    {"image-too-large", warning, "an image larger than GPUs take", ""},
    {"camera-distances", error, "a camera whose far distance isn't greater than its near distance", ""},
    {"light-without-effect", warning, "a light that is on but dark", ""},
    {"too-many-lights", warning, "a mesh, or a group with meshes, that more lights shine on than are drawn", ""},
    {"switch-index", warning, "the number of a child that a switch doesn't have", "Show no child"},
    {"duplicate-name", warning, "children of a group that have the same name", "Rename all but the first"},
    {"unused-material", warning, "a material that no mesh follows in its group", "Remove the material"},
    {"unused-texture", warning, "a texture that no mesh follows in its group", "Remove the texture"},
    {"unused-light", warning, "a light that no mesh follows in its group", "Remove the light"},
    {"unused-complexity", warning, "a complexity that no mesh follows in its group", "Remove the complexity"},
    {"empty-group", information, "a group without children", ""},
    {"unknown-class", information, "a node of a class that isn't known here", ""},
}};

} // namespace

const ProblemClass& problemClass(NxProblemKind kind) noexcept
{
    return classes[static_cast<std::size_t>(kind)];
}

std::optional<NxProblemKind> problemKind(std::string_view identifier) noexcept
{
    for (std::size_t kind = 0; kind < classes.size(); ++kind) {
        if (classes[kind].identifier == identifier)
            return static_cast<NxProblemKind>(kind);
    }
    return std::nullopt;
}

std::string_view severityText(NxSeverity severity) noexcept
{
    constexpr std::array<std::string_view, 3> texts{"information", "warning", "error"};
    return texts[static_cast<std::size_t>(severity)];
}

} // namespace meridane
