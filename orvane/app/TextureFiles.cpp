#include "orvane/app/TextureFiles.h"

#include "orvane/app/TextConversion.h"

#include "meridane/gl/NxImage.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>

#include <cstddef>
#include <cstring>

namespace {

/// With four bytes each as much memory as Qt itself gives an image.
constexpr qint64 mostPixels = qint64{8192} * 8192;

bool isTooLarge(const QSize& size)
{
    return size.width() > TextureFiles::largestSide || size.height() > TextureFiles::largestSide
        || qint64{size.width()} * size.height() > mostPixels;
}

NxImage toImage(const QImage& picture, QImage::Format format, int components)
{
    const QImage pixels = picture.convertToFormat(format);
    NxImage image{pixels.width(), pixels.height(), components, {}};
    const auto line = static_cast<std::size_t>(image.width) * static_cast<std::size_t>(components);
    image.bytes.resize(line * static_cast<std::size_t>(image.height));
    for (int row = 0; row < image.height; ++row)
        std::memcpy(image.bytes.data() + static_cast<std::size_t>(row) * line,
            pixels.constScanLine(image.height - 1 - row), line);
    return image;
}

} // namespace

bool TextureFiles::read(const std::string& fileName, NxImage& image) const
{
    const QString name = orvane::toQString(fileName);
    if (name.isEmpty() || (m_folder.isEmpty() && QDir::isRelativePath(name)))
        return false;
    const QString path = QDir(m_folder).filePath(name);
    // A pipe or a device could be read without end.
    if (!QFileInfo(path).isFile())
        return false;
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    if (isTooLarge(reader.size()))
        return false;
    const QImage picture = reader.read();
    if (picture.isNull() || isTooLarge(picture.size()))
        return false;
    const bool hasAlpha = picture.hasAlphaChannel();
    image = toImage(picture, hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888, hasAlpha ? 4 : 3);
    return true;
}
