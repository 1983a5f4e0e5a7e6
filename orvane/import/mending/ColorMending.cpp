#include "orvane/import/mending/ColorMending.h"

#include "orvane/import/mending/Lists.h"
#include "orvane/import/mending/Texts.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include <assimp/scene.h>

namespace orvane {
namespace {

constexpr float byteScale = 255;

template <typename Condition>
bool allComponents(std::span<const aiColor4D> colors, const Condition& condition)
{
    return std::all_of(colors.begin(), colors.end(), [&](const aiColor4D& color) {
        return condition(color.r) && condition(color.g) && condition(color.b) && condition(color.a);
    });
}

template <typename Change>
void changeComponents(std::span<aiColor4D> colors, const Change& change)
{
    for (aiColor4D& color : colors)
        color = {change(color.r), change(color.g), change(color.b), change(color.a)};
}

bool isShare(float value)
{
    return value >= 0 && value <= 1;
}

/// Whether the value is a whole number of a byte, signed or not, but for rounding.
bool isByte(float value)
{
    return value > -128.5F && value < 255.5F && std::abs(value - std::round(value)) < 0.01F;
}

float shareOfByte(float value)
{
    const float whole = std::round(value);
    return (whole < 0 ? whole + 256 : whole) / byteScale;
}

/// The number in the file, from what the library made of it.
float storedNumber(float value, ColorStorage storage)
{
    switch (storage) {
    case ColorStorage::SignedByte:
        return value * byteScale - 127;
    case ColorStorage::Short:
        return value * 65535 - 32767;
    case ColorStorage::UnsignedShort:
    case ColorStorage::UnsignedInt:
        return value * 65535;
    case ColorStorage::Int:
        return (value - 0.5F) * byteScale;
    case ColorStorage::Usual:
        break;
    }
    return value;
}

/// The library adds full opacity to colours without one.
bool isAddedOpacity(std::span<const aiColor4D> colors)
{
    return std::all_of(colors.begin(), colors.end(), [](const aiColor4D& color) { return color.a == 1; });
}

ColorMending mendStored(std::span<aiColor4D> colors, ColorStorage storage)
{
    const bool hasOpacity = !isAddedOpacity(colors);
    std::vector<aiColor4D> stored(colors.begin(), colors.end());
    for (aiColor4D& color : stored) {
        const auto number = [&](float value) { return storedNumber(value, storage); };
        color = {number(color.r), number(color.g), number(color.b), hasOpacity ? number(color.a) : byteScale};
    }
    if (!allComponents(stored, [](float value) { return isByte(value); }))
        return ColorMending::None;
    std::copy(stored.begin(), stored.end(), colors.begin());
    changeComponents(colors, &shareOfByte);
    return ColorMending::Mended;
}

ColorMending mendRange(std::span<aiColor4D> colors)
{
    if (allComponents(colors, &isShare))
        return ColorMending::None;
    if (!allComponents(colors, [](float value) { return std::isfinite(value); }))
        return ColorMending::Senseless;
    const float largest = 1.01F; // for rounding
    if (allComponents(colors, [&](float value) { return value >= 1 - largest && value <= largest; })) {
        changeComponents(colors, [](float value) { return std::clamp(value, 0.0F, 1.0F); });
        return ColorMending::None;
    }
    if (!allComponents(colors, &isByte))
        return ColorMending::Senseless;
    const bool hasOpacity = !isAddedOpacity(colors);
    for (aiColor4D& color : colors)
        color.a = hasOpacity ? color.a : byteScale;
    changeComponents(colors, &shareOfByte);
    return ColorMending::Mended;
}

ColorMending mendOpacity(std::span<aiColor4D> colors)
{
    const bool isInvisible
        = std::all_of(colors.begin(), colors.end(), [](const aiColor4D& color) { return color.a == 0; });
    if (!isInvisible)
        return ColorMending::None;
    if (allComponents(colors, [](float value) { return value == 0; }))
        return ColorMending::Senseless;
    for (aiColor4D& color : colors)
        color.a = 1;
    return ColorMending::Mended;
}

} // namespace

ColorStorage colorStorageOf(std::string_view beginning)
{
    const std::string_view head = beginning.substr(0, beginning.find("end_header"));
    if (!head.starts_with("ply") || head.size() == beginning.size())
        return ColorStorage::Usual;
    for (const std::string_view name : {" red", " diffuse_red"}) {
        const std::size_t end = std::min(head.find(std::string(name) + '\n'), head.find(std::string(name) + '\r'));
        if (end == std::string_view::npos)
            continue;
        const std::size_t start = head.find_last_of(" \n", end - 1);
        const std::string_view type = head.substr(start + 1, end - start - 1);
        if (type == "char" || type == "int8")
            return ColorStorage::SignedByte;
        if (type == "short" || type == "int16")
            return ColorStorage::Short;
        if (type == "ushort" || type == "uint16")
            return ColorStorage::UnsignedShort;
        if (type == "int" || type == "int32")
            return ColorStorage::Int;
        if (type == "uint" || type == "uint32")
            return ColorStorage::UnsignedInt;
    }
    return ColorStorage::Usual;
}

ColorMending mendColors(std::span<aiColor4D> colors, ColorStorage storage)
{
    ColorMending mending = storage == ColorStorage::Usual ? ColorMending::None : mendStored(colors, storage);
    for (const auto step : {&mendRange, &mendOpacity}) {
        if (mending != ColorMending::Senseless)
            mending = std::max(mending, step(colors));
    }
    return mending;
}

void mendVertexColors(aiScene& model, ColorStorage storage, ImportWarnings& warnings)
{
    for (aiMesh* mesh : listOf(model.mMeshes, model.mNumMeshes)) {
        const std::span<aiColor4D> colors = listOf(mesh->mColors[0], mesh->mNumVertices);
        switch (colors.empty() ? ColorMending::None : mendColors(colors, storage)) {
        case ColorMending::None:
            break;
        case ColorMending::Mended:
            warnings.add("mended vertex colours that are no colours in the meshes", viewOf(mesh->mName));
            break;
        case ColorMending::Senseless:
            warnings.add("left out vertex colours that are no colours in the meshes", viewOf(mesh->mName));
            delete[] mesh->mColors[0];
            mesh->mColors[0] = nullptr;
            break;
        }
    }
}

} // namespace orvane
