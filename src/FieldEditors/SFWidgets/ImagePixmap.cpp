#include "FieldEditors/SFWidgets/ImagePixmap.h"

#include "meridane/base/MrdMemory.h"
#include "meridane/scene/fields/single/NxSFImage.h"

#include <QImage>
#include <QPixmap>

#include <cstddef>
#include <cstring>
#include <memory>

namespace {

struct Source {
    const unsigned char* bytes;
    std::size_t width;
    std::size_t height;
    std::size_t components;
};

struct Free {
    void operator()(unsigned char* block) const { safeFree(block, pMrd_memCnt); }
};
using Buffer = std::unique_ptr<unsigned char, Free>;

QImage::Format formatOf(int components)
{
    switch (components) {
    case 1:
        return QImage::Format_Indexed8;
    case 2:
        return QImage::Format_RGB16;
    case 3:
    case 4:
        return QImage::Format_ARGB32;
    default:
        return QImage::Format_Invalid;
    }
}

// Contract: rows are copied without padding. QImage expects each row to begin at a multiple of four bytes, so an image
// with other rows is sheared, and its last rows are partly missing.
void copyRows(unsigned char* target, std::size_t targetSize, const Source& source)
{
    const std::size_t size = source.width * source.height * source.components;
    std::memcpy(target, source.bytes, size);
    std::memset(target + size, 0, targetSize - size);
}

// Red and blue change places, and the rows their order.
void turnRows(unsigned char* target, const Source& source)
{
    const bool hasAlpha = source.components == 4;
    for (std::size_t row = source.height; row-- > 0;) {
        const unsigned char* pixel = source.bytes + row * source.width * source.components;
        for (std::size_t x = 0; x < source.width; ++x) {
            target[0] = pixel[2];
            target[1] = pixel[1];
            target[2] = pixel[0];
            target[3] = hasAlpha ? pixel[3] : 255;
            target += 4;
            pixel += source.components;
        }
    }
}

void setColors(QImage& image)
{
    if (image.format() != QImage::Format_Indexed8) {
        // Contract: called here as well, without effect and with a warning of Qt's.
        image.setColor(0, 0xFF000000);
        return;
    }
    image.setColorCount(256);
    for (int grey = 0; grey < 256; ++grey)
        image.setColor(grey, qRgb(grey, grey, grey));
}

} // namespace

QPixmap orvane::imagePixmap(const NxField& field)
{
    if (!field.isOfType(NxSFImage::getClassTypeId()))
        return {};
    VbVec2s size;
    int components = 0;
    const unsigned char* const bytes = static_cast<const NxSFImage&>(field).getValue(size, components);
    const QImage::Format format = formatOf(components);
    if (bytes == nullptr || format == QImage::Format_Invalid)
        return {};
    const Source source{bytes, static_cast<std::size_t>(size[0]), static_cast<std::size_t>(size[1]),
        static_cast<std::size_t>(components)};
    const std::size_t pixelSize = components < 3 ? source.components : 4;
    const std::size_t bufferSize = (source.width * pixelSize + 3) / 4 * 4 * source.height;
    const Buffer buffer(static_cast<unsigned char*>(safeMalloc(__FILE__, __LINE__, bufferSize, pMrd_memCnt)));
    if (buffer == nullptr)
        return {};
    if (components < 3)
        copyRows(buffer.get(), bufferSize, source);
    else
        turnRows(buffer.get(), source);
    QImage image(buffer.get(), size[0], size[1], format);
    setColors(image);
    QPixmap pixmap = QPixmap::fromImage(image);
    // On a screen that has the image's own format the pixmap would go on using the buffer.
    pixmap.detach();
    return pixmap;
}
