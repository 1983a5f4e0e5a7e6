#include "orvane/import/mending/SpaceConversion.h"

#include "orvane/import/mending/SourceFormat.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>

namespace orvane {
namespace {

constexpr double centimetre = 0.01; // the unit that FBX files count in

/// The space of a file.
struct SourceSpace {
    double metresPerUnit = 1;
    aiMatrix4x4 toYUp;
    std::size_t upAxis = 1;
    bool isDownwards = false; // the up axis points down
};

std::optional<std::size_t> axisOf(const aiMetadata& data, const char* key)
{
    std::int32_t axis = -1;
    return data.Get(key, axis) && axis >= 0 && axis < 3 ? std::optional(static_cast<std::size_t>(axis)) : std::nullopt;
}

float signOf(const aiMetadata& data, const char* key)
{
    std::int32_t sign = 1;
    return data.Get(key, sign) && sign < 0 ? -1.0F : 1.0F;
}

std::optional<SourceSpace> spaceOf(const aiScene& model)
{
    if (!hasSourceFormat(model, "Autodesk FBX"))
        return std::nullopt;
    const aiMetadata& data = *model.mMetaData;
    SourceSpace space;
    float unit = 1;
    const bool isStated = data.Get("UnitScaleFactor", unit) && unit > 0 && std::isfinite(unit);
    // Rounded, so that a float that is nearly a decimal number shows as that.
    space.metresPerUnit = isStated ? std::round(static_cast<double>(unit) * 1e6) / 1e6 * centimetre : centimetre;
    const auto right = axisOf(data, "CoordAxis");
    const auto up = axisOf(data, "UpAxis");
    const auto front = axisOf(data, "FrontAxis");
    if (!right || !up || !front || *right == *up || *up == *front || *front == *right)
        return space;
    std::array<std::array<float, 3>, 3> rows{};
    rows[0].at(*right) = signOf(data, "CoordAxisSign");
    rows[1].at(*up) = signOf(data, "UpAxisSign");
    rows[2].at(*front) = signOf(data, "FrontAxisSign");
    space.toYUp = {rows[0][0], rows[0][1], rows[0][2], 0, rows[1][0], rows[1][1], rows[1][2], 0, rows[2][0], rows[2][1],
        rows[2][2], 0, 0, 0, 0, 1};
    space.upAxis = *up;
    space.isDownwards = rows[1].at(*up) < 0;
    return space;
}

std::string number(double value)
{
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.begin(), text.end(), value, std::chars_format::general, 6).ptr;
    return {text.begin(), end};
}

std::string unitText(double metres)
{
    return metres == 1 ? std::string("metres") : "units of " + number(metres / centimetre) + " cm";
}

} // namespace

SpaceNote convertSpace(aiScene& model, ImportOptions::Space wanted)
{
    const std::optional<SourceSpace> space = spaceOf(model);
    if (!space)
        return {};
    const bool isTurned = !space->toYUp.IsIdentity();
    const bool isScaled = std::abs(space->metresPerUnit - 1) > 1e-9;
    if (!isTurned && !isScaled)
        return {};
    constexpr std::array<const char*, 3> axes{"x", "y", "z"};
    const std::string has = std::string("The file is in ") + unitText(space->metresPerUnit) + " with "
        + (space->isDownwards ? "-" : "") + axes.at(space->upAxis) + " upwards";
    const bool scales = isScaled && wanted == ImportOptions::Space::Convert;
    const bool turns = isTurned && wanted != ImportOptions::Space::Keep;
    if (!scales && !turns)
        return {has + "; that was kept.", false};
    aiMatrix4x4 scaling;
    if (scales)
        aiMatrix4x4::Scaling(aiVector3D(static_cast<float>(space->metresPerUnit)), scaling);
    aiMatrix4x4& root = model.mRootNode->mTransformation;
    root = scaling * (turns ? space->toYUp : aiMatrix4x4()) * root;
    const std::string done = turns && scales ? "turned and scaled" : turns ? "turned" : "scaled";
    return {has + "; it was " + done + (scales ? " to metres" : "") + (turns ? ", y upwards." : "."), true};
}

} // namespace orvane
