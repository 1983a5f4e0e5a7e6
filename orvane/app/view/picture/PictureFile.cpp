#include "orvane/app/view/picture/PictureFile.h"

#include "meridane/base/Files.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>

namespace orvane {

namespace {

struct PictureFileTexts {
    Q_DECLARE_TR_FUNCTIONS(PictureFile)
};

QByteArray formatOf(const QString& fileName)
{
    return QFileInfo(fileName).suffix().toLatin1().toLower();
}

} // namespace

Result<> checkPictureName(const QString& fileName)
{
    if (QImageWriter::supportedImageFormats().contains(formatOf(fileName)))
        return {};
    return Failure{PictureFileTexts::tr("%1: the name of a picture ends in .png, .jpg, .bmp or .ppm").arg(fileName)};
}

bool canBeTransparent(const QString& fileName)
{
    const QByteArray format = formatOf(fileName);
    return format == "png" || format == "webp" || format == "tif" || format == "tiff";
}

Result<> writePicture(const QImage& picture, const QString& fileName)
{
    if (auto name = checkPictureName(fileName); !name)
        return name;
    QBuffer buffer;
    QImageWriter writer(&buffer, formatOf(fileName));
    if (!writer.write(picture))
        return Failure{QStringLiteral("%1: %2").arg(fileName, writer.errorString())};
    meridane::FileReplacer file;
    auto failure = file.open(toStdFileName(fileName));
    if (!failure)
        failure = file.write(buffer.data().constData(), static_cast<std::size_t>(buffer.size()));
    if (!failure)
        failure = file.commit();
    return toResult(failure);
}

} // namespace orvane
