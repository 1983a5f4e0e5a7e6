#pragma once

#include "orvane/import/mending/ImportWarnings.h"

#include <span>
#include <string>
#include <string_view>

#include <assimp/types.h>

struct aiMaterial;
struct aiScene;

namespace orvane {

/// How a file stores the components of its vertex colours, where the import library scales them in the wrong way.
enum class ColorStorage {
    Usual, ///< nothing is known, or the library reads it right
    SignedByte,
    Short,
    UnsignedShort,
    Int,
    UnsignedInt,
};

/// The storage of colours in a PLY file, from its header; the usual one for any other file.
[[nodiscard]] ColorStorage colorStorageOf(std::string_view beginning);

/// What became of vertex colours.
enum class ColorMending {
    None, ///< they are as they were, but for rounding
    Mended, ///< they make sense now
    Senseless, ///< they can't be mended
};

/// Mends vertex colours that make no sense: bytes that weren't scaled to 1, signed bytes, and colours that all have no
/// opacity.
[[nodiscard]] ColorMending mendColors(std::span<aiColor4D> colors, ColorStorage storage);

/// Mends the vertex colours of all meshes, and leaves out those that can't be mended.
void mendVertexColors(aiScene& model, ColorStorage storage, ImportWarnings& warnings);
/// Whether a glTF material says that its opacity and that of its texture have no meaning.
[[nodiscard]] bool isDeclaredOpaque(const aiMaterial& material);
/// Mends materials that would make everything invisible or too bright: opacities of Collada files are inverted where
/// their exporter wrote the opposite of what it meant.
void mendMaterials(aiScene& model, ImportWarnings& warnings);

} // namespace orvane
