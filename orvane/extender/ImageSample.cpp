#include "orvane/extender/ImageSample.h"

#include "meridane/scene/fields/single/NxSFImage.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cstddef>

namespace orvane {

namespace {

struct Source {
    const unsigned char* bytes;
    std::size_t width;
    std::size_t height;
    std::size_t components;

    /// Red, green, blue and opacity.
    [[nodiscard]] std::array<unsigned, 4> pixel(std::size_t x, std::size_t y) const
    {
        const unsigned char* const begin = bytes + (y * width + x) * components;
        switch (components) {
        case 1:
            return {begin[0], begin[0], begin[0], 255};
        case 2:
            return {begin[0], begin[0], begin[0], begin[1]};
        case 3:
            return {begin[0], begin[1], begin[2], 255};
        default:
            return {begin[0], begin[1], begin[2], begin[3]};
        }
    }
};

/// The average of at most 4 by 4 pixels spread over what a pixel of the sample covers. Translucent pixels count less.
QRgb average(const Source& source, std::size_t left, std::size_t right, std::size_t top, std::size_t bottom)
{
    constexpr std::size_t mostSteps = 4;
    const std::size_t columns = std::clamp<std::size_t>(right - left, 1, mostSteps);
    const std::size_t rows = std::clamp<std::size_t>(bottom - top, 1, mostSteps);
    std::array<unsigned, 4> sum{};
    for (std::size_t row = 0; row < rows; ++row) {
        for (std::size_t column = 0; column < columns; ++column) {
            const std::size_t x = left + (right - left) * column / columns;
            const std::size_t y = top + (bottom - top) * row / rows;
            const std::array<unsigned, 4> pixel = source.pixel(x, y);
            for (std::size_t i = 0; i < 3; ++i)
                sum[i] += pixel[i] * pixel[3];
            sum[3] += pixel[3];
        }
    }
    if (sum[3] == 0)
        return qRgba(0, 0, 0, 0);
    const auto part = [&sum](std::size_t i) { return static_cast<int>((sum[i] + sum[3] / 2) / sum[3]); };
    return qRgba(part(0), part(1), part(2), static_cast<int>(sum[3] / (columns * rows)));
}

ImageBytes bytesOf(const NxSFImage& field)
{
    VbVec2s size;
    ImageBytes image;
    image.bytes = field.getValue(size, image.components);
    image.width = size[0];
    image.height = size[1];
    return image;
}

} // namespace

QImage sampledImage(const NxSFImage& field, const QSize& room)
{
    return sampledImage(bytesOf(field), room);
}

QString imageDescription(const NxSFImage& field)
{
    return imageDescription(bytesOf(field));
}

QImage sampledImage(const ImageBytes& image, const QSize& room)
{
    if (image.bytes == nullptr || room.isEmpty())
        return {};
    const QSize whole(image.width, image.height);
    const bool fits = whole.width() <= room.width() && whole.height() <= room.height();
    const QSize shown = fits ? whole : whole.scaled(room, Qt::KeepAspectRatio).expandedTo({1, 1});
    const Source source{image.bytes, static_cast<std::size_t>(whole.width()), static_cast<std::size_t>(whole.height()),
        static_cast<std::size_t>(image.components)};
    const auto width = static_cast<std::size_t>(shown.width());
    const auto height = static_cast<std::size_t>(shown.height());
    QImage sample(shown, QImage::Format_ARGB32);
    for (std::size_t row = 0; row < height; ++row) {
        // The first row of the field is the lowest one.
        auto* const line = reinterpret_cast<QRgb*>(sample.scanLine(static_cast<int>(height - 1 - row)));
        for (std::size_t column = 0; column < width; ++column) {
            line[column] = average(source, column * source.width / width, (column + 1) * source.width / width,
                row * source.height / height, (row + 1) * source.height / height);
        }
    }
    return sample;
}

QString imageDescription(const ImageBytes& image)
{
    if (image.bytes == nullptr)
        return QCoreApplication::translate("ImageSample", "no image");
    static constexpr std::array channels{QT_TRANSLATE_NOOP("ImageSample", "grey"),
        QT_TRANSLATE_NOOP("ImageSample", "grey and opacity"), QT_TRANSLATE_NOOP("ImageSample", "RGB"),
        QT_TRANSLATE_NOOP("ImageSample", "RGBA")};
    const char* const names = channels[static_cast<std::size_t>(std::clamp(image.components, 1, 4) - 1)];
    return QStringLiteral("%1 × %2, %3")
        .arg(image.width)
        .arg(image.height)
        .arg(QCoreApplication::translate("ImageSample", names));
}

} // namespace orvane
