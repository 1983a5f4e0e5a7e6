#include "orvane/import/conversion/ModelFormats.h"

#include <algorithm>
#include <array>
#include <assimp/Exporter.hpp>
#include <assimp/Importer.hpp>
#include <cctype>

namespace orvane {
namespace {

struct WritableFormat {
    std::string_view extension;
    std::string_view format;
};

// Where the library has several formats for one extension, the current one, and the compact one if the library can read
// it back. Formats that the library writes past the files it is given (3mf), crashes on (x3d), misplaces (3ds) or can't
// read back (stp) aren't here.
constexpr std::array<WritableFormat, 8> writableFormats{{
    {"dae", "collada"},
    {"fbx", "fbxa"},
    {"glb", "glb2"},
    {"gltf", "gltf2"},
    {"obj", "obj"},
    {"ply", "ply"},
    {"stl", "stlb"},
    {"x", "x"},
}};

std::string lowerCase(std::string_view text)
{
    std::string lower(text);
    for (char& c : lower)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return lower;
}

} // namespace

std::vector<std::string> readableExtensions()
{
    std::string list;
    Assimp::Importer().GetExtensionList(list); // "*.3ds;*.obj"
    std::vector<std::string> extensions;
    for (std::size_t start = 0; start < list.size();) {
        const std::size_t end = std::min(list.find(';', start), list.size());
        if (end - start > 2)
            extensions.push_back(lowerCase(std::string_view(list).substr(start + 2, end - start - 2)));
        start = end + 1;
    }
    std::sort(extensions.begin(), extensions.end());
    return extensions;
}

std::vector<std::string> writableExtensions()
{
    std::vector<std::string> extensions;
    for (const WritableFormat& format : writableFormats) {
        if (!exportFormat(format.extension).empty())
            extensions.emplace_back(format.extension);
    }
    return extensions;
}

std::string exportFormat(std::string_view extension)
{
    const std::string lower = lowerCase(extension);
    const auto* place = std::find_if(writableFormats.begin(), writableFormats.end(),
        [&](const WritableFormat& format) { return format.extension == lower; });
    if (place == writableFormats.end())
        return {};
    // The library may have been built without it.
    const Assimp::Exporter exporter;
    for (std::size_t index = 0; index < exporter.GetExportFormatCount(); ++index) {
        if (exporter.GetExportFormatDescription(index)->id == place->format)
            return std::string(place->format);
    }
    return {};
}

} // namespace orvane
