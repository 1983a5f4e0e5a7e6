#include "orvane/import/pictures/Orientation.h"

#include <algorithm>
#include <libexif/exif-data.h>
#include <memory>
#include <utility>

namespace orvane {
namespace {

constexpr int uprightOrientation = 1;
constexpr int lastOrientation = 8;
constexpr int firstTurned = 5; // where rows are columns

/// A pixel of the upright picture, from the top left.
struct Place {
    int x;
    int y;
};

/// The index of that pixel in the original picture, which has that width and height.
Place sourceOf(Place seen, int width, int height, int orientation)
{
    const int right = width - 1;
    const int bottom = height - 1;
    switch (orientation) {
    case 2:
        return {right - seen.x, seen.y};
    case 3:
        return {right - seen.x, bottom - seen.y};
    case 4:
        return {seen.x, bottom - seen.y};
    case 5:
        return {seen.y, seen.x};
    case 6:
        return {seen.y, bottom - seen.x};
    case 7:
        return {right - seen.y, bottom - seen.x};
    case lastOrientation:
        return {right - seen.y, seen.x};
    default:
        return seen;
    }
}

} // namespace

int orientationOf(std::span<const unsigned char> file)
{
    const std::unique_ptr<ExifData, void (*)(ExifData*)> data(
        exif_data_new_from_data(file.data(), static_cast<unsigned int>(file.size())), &exif_data_unref);
    if (data == nullptr)
        return uprightOrientation;
    const ExifEntry* const entry = exif_content_get_entry(data->ifd[EXIF_IFD_0], EXIF_TAG_ORIENTATION);
    if (entry == nullptr || entry->format != EXIF_FORMAT_SHORT || entry->size < sizeof(ExifShort))
        return uprightOrientation;
    const int orientation = exif_get_short(entry->data, exif_data_get_byte_order(data.get()));
    return orientation >= uprightOrientation && orientation <= lastOrientation ? orientation : uprightOrientation;
}

Picture upright(Picture picture, int orientation)
{
    if (orientation <= uprightOrientation || orientation > lastOrientation)
        return picture;
    Picture result{picture.width, picture.height, picture.components, {}};
    if (orientation >= firstTurned)
        std::swap(result.width, result.height);
    result.bytes.reserve(picture.bytes.size());
    const auto components = static_cast<std::ptrdiff_t>(picture.components);
    for (int y = result.height - 1; y >= 0; --y) {
        for (int x = 0; x < result.width; ++x) {
            const Place source = sourceOf({x, y}, picture.width, picture.height, orientation);
            const std::ptrdiff_t row = picture.height - 1 - source.y;
            const auto pixel = picture.bytes.begin() + (row * picture.width + source.x) * components;
            result.bytes.insert(result.bytes.end(), pixel, pixel + components);
        }
    }
    return result;
}

} // namespace orvane
