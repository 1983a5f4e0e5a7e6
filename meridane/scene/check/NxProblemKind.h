#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

/// \file
/// The kinds of problems that a check of a scene finds.

/// How bad a problem of a scene is.
enum class NxSeverity : std::uint8_t {
    Information, ///< harmless
    Warning, ///< something has no effect, or is shown in another way than it seems
    Error, ///< something can't be shown, or is lost
};

/// What a check of a scene finds. docs/checking.md has the table for users.
enum class NxProblemKind : std::uint8_t {
    NotFinite,
    OutOfRange,
    ZeroScale,
    ZeroAxis,
    SingularMatrix,
    NoPositions,
    PositionNotFinite,
    IndexOutOfRange,
    IncompletePrimitive,
    NormalCount,
    ColorCount,
    CoordinateCount,
    ZeroNormal,
    NormalLength,
    DegenerateFaces,
    MissingFile,
    UnreadableFile,
    NoImage,
    ImageTooLarge,
    CameraDistances,
    LightWithoutEffect,
    TooManyLights,
    SwitchIndex,
    DuplicateName,
    UnusedMaterial,
    UnusedTexture,
    UnusedLight,
    UnusedComplexity,
    EmptyGroup,
    UnknownClass,
};

namespace meridane {

/// What all problems of a kind have in common. The texts are literals.
struct ProblemClass {
    std::string_view identifier; ///< stable, for scripts, such as "index-out-of-range"
    NxSeverity severity = NxSeverity::Warning; ///< the same for all problems of the kind
    std::string_view description; ///< what is found, in one line
    std::string_view mend; ///< what the mend does, such as "Remove the material"; empty if there is none
};

/// The number of kinds; their values are below it.
inline constexpr std::size_t problemKindCount = static_cast<std::size_t>(NxProblemKind::UnknownClass) + 1;

/// What the problems of a kind have in common. It lives as long as the program.
[[nodiscard]] const ProblemClass& problemClass(NxProblemKind kind) noexcept;
/// The kind with that identifier, or nothing.
[[nodiscard]] std::optional<NxProblemKind> problemKind(std::string_view identifier) noexcept;
/// "information", "warning" or "error".
[[nodiscard]] std::string_view severityText(NxSeverity severity) noexcept;

} // namespace meridane
