#include "meridane/gl/gpu/detail/TextureImage.h"

#include "meridane/gl/places/detail/LookRecords.h"
#include "meridane/gl/places/detail/Problems.h"
#include "meridane/scene/check/NxSceneProblem.h"
#include "meridane/scene/fields/EffectiveField.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

namespace meridane {
namespace {

std::size_t byteCount(const NxImage& image)
{
    return static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height)
        * static_cast<std::size_t>(image.components);
}

bool isWhole(const NxImage& image)
{
    return image.width > 0 && image.height > 0 && image.components >= 1 && image.components <= 4
        && image.bytes.size() == byteCount(image);
}

std::string sizeText(int width, int height)
{
    return std::to_string(width) + " by " + std::to_string(height);
}

void load(TextureImage& image, const std::string& path, TextureRecord& record, const NxImageLoader& loader,
    Problems& problems)
{
    std::string reason;
    const NxImageState state = loader ? loader(path, image.loaded, reason) : NxImageState::Failed;
    const bool isLoaded = state == NxImageState::Loaded;
    image.isPending = state == NxImageState::Pending;
    if (image.isPending)
        return;
    problems.note(record, Problem::ImageFile, state == NxImageState::Failed,
        [&] { return "its image file '" + path + "' can't be loaded" + (reason.empty() ? "" : ": " + reason); });
    const bool isBad = isLoaded && !isWhole(image.loaded);
    problems.note(record, Problem::ImageBytes, isBad, [&] {
        return "its image of " + sizeText(image.loaded.width, image.loaded.height) + " pixels with "
            + std::to_string(image.loaded.components) + " components comes with "
            + std::to_string(image.loaded.bytes.size()) + " bytes; it isn't drawn";
    });
    if (!isLoaded || isBad)
        return;
    image.width = image.loaded.width;
    image.height = image.loaded.height;
    image.components = image.loaded.components;
    image.bytes = image.loaded.bytes.data();
}

/// Copies the middle pixel of each block of pixels.
void shrink(TextureImage& image, int maxSide)
{
    NxImage small;
    small.width = std::min(image.width, maxSide);
    small.height = std::min(image.height, maxSide);
    small.components = image.components;
    small.bytes.reserve(byteCount(small));
    const auto source = [](int at, int from, int to) {
        return static_cast<std::size_t>((2 * std::int64_t{at} + 1) * from / (2 * std::int64_t{to}));
    };
    const auto components = static_cast<std::size_t>(image.components);
    for (int y = 0; y < small.height; ++y) {
        const unsigned char* const row
            = image.bytes + source(y, image.height, small.height) * static_cast<std::size_t>(image.width) * components;
        for (int x = 0; x < small.width; ++x) {
            const unsigned char* const pixel = row + source(x, image.width, small.width) * components;
            small.bytes.insert(small.bytes.end(), pixel, pixel + components);
        }
    }
    image.loaded = std::move(small);
    image.width = image.loaded.width;
    image.height = image.loaded.height;
    image.bytes = image.loaded.bytes.data();
}

} // namespace

bool TextureImage::isTranslucent() const
{
    if (components != 2 && components != 4)
        return false;
    const auto step = static_cast<std::size_t>(components);
    const std::size_t end = static_cast<std::size_t>(width) * static_cast<std::size_t>(height) * step;
    for (std::size_t at = step - 1; at < end; at += step) {
        if (bytes[at] != 255)
            return true;
    }
    return false;
}

TextureImage imageOf(TextureRecord& record, const NxImageLoader& loader, int maxSide, Problems& problems)
{
    const NxTexture& texture = *record.texture();
    TextureImage image;
    VbVec2s size;
    image.bytes = effectiveField(texture.image).getValue(size, image.components);
    const std::string path(effectiveField(texture.filePath).getValue().view());
    if (image.bytes != nullptr) {
        image.width = size[0];
        image.height = size[1];
    } else if (!path.empty()) {
        load(image, path, record, loader, problems);
    }
    problems.note(record, Problem::NoImage, image.bytes == nullptr && path.empty(),
        [] { return problemText(NxProblemKind::NoImage); });
    const bool isTooLarge = image.width > maxSide || image.height > maxSide;
    problems.note(record, Problem::ImageTooLarge, isTooLarge, [&] {
        return problemText(NxProblemKind::ImageTooLarge,
            {.limit = static_cast<std::size_t>(maxSide), .detail = sizeText(image.width, image.height)});
    });
    if (isTooLarge)
        shrink(image, maxSide);
    return image;
}

} // namespace meridane
