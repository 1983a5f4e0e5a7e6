#pragma once

#include <array>
#include <string_view>

/// The file formats that the tool knows by name. File dialogs and export, the helper's writer, the desktop entry in
/// `orvane/app/desktop` and the table in `docs/files.md` all follow from this list, or are tested against it.
///
/// The import library reads more formats than these; a file dialog finds such files under "All files".
namespace orvane {

struct FileFormat {
    std::string_view name; ///< for users
    std::string_view extension; ///< of its files: lower case, without the dot
    std::string_view mimeType; ///< as the desktop knows it
    std::string_view writer; ///< the import library's name of its writer; empty if the tool can't write the format

    [[nodiscard]] constexpr bool isWritable() const noexcept { return !writer.empty(); }
};

/// The tool's own format.
struct SceneFormat {
    static constexpr std::string_view extension = "mrd";
    static constexpr std::string_view mimeType = "model/x-mrd";
};

/// The formats of foreign models, the most usual first. The tool reads all of them.
///
/// Where the library has several writers for one extension, it is the current one, and the compact one if the library
/// can read its files. Formats that the library writes past the files it is given (3mf), crashes on (x3d), misplaces
/// (3ds) or can't read back (stp) aren't written.
inline constexpr std::array<FileFormat, 11> modelFormats{{
    {"glTF binary", "glb", "model/gltf-binary", "glb2"},
    {"glTF", "gltf", "model/gltf+json", "gltf2"},
    {"Wavefront OBJ", "obj", "model/obj", "obj"},
    {"FBX", "fbx", "model/x-fbx", "fbxa"},
    {"Collada", "dae", "model/vnd.collada+xml", "collada"},
    {"STL", "stl", "model/stl", "stlb"},
    {"Stanford PLY", "ply", "model/x-ply", "ply"},
    {"3D Studio", "3ds", "image/x-3ds", ""},
    {"Blender", "blend", "application/x-blender", ""},
    {"DirectX", "x", "model/x-directx", "x"},
    {"Object File Format", "off", "model/x-off", ""},
}};

} // namespace orvane
