#include "orvane/import/conversion/ModelFormats.h"

#include "orvane/transfer/FileFormats.h"

#include <algorithm>
#include <assimp/Exporter.hpp>
#include <assimp/Importer.hpp>
#include <cctype>

namespace orvane {
std::string lowerCase(std::string_view text)
{
    std::string lower(text);
    for (char& c : lower)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return lower;
}

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
    for (const FileFormat& format : modelFormats) {
        if (!exportFormat(format.extension).empty())
            extensions.emplace_back(format.extension);
    }
    std::sort(extensions.begin(), extensions.end());
    return extensions;
}

std::string exportFormat(std::string_view extension)
{
    const std::string lower = lowerCase(extension);
    const auto* const format = std::find_if(
        modelFormats.begin(), modelFormats.end(), [&](const FileFormat& each) { return each.extension == lower; });
    if (format == modelFormats.end() || !format->isWritable())
        return {};
    // The library may have been built without it.
    const Assimp::Exporter exporter;
    for (std::size_t index = 0; index < exporter.GetExportFormatCount(); ++index) {
        if (exporter.GetExportFormatDescription(index)->id == format->writer)
            return std::string(format->writer);
    }
    return {};
}

} // namespace orvane
