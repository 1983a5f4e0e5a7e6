#include "orvane/app/fields/editors/ImageReplacement.h"

#include "orvane/app/base/DraggedFile.h"
#include "orvane/app/base/PlainText.h"
#include "orvane/app/fields/editors/FieldAt.h"
#include "orvane/app/fields/values/FieldWriter.h"
#include "orvane/app/images/ImageFile.h"
#include "orvane/app/images/ImageFolders.h"

#include "meridane/scene/fields/single/NxSFImage.h"

#include <QFileInfo>
#include <QImage>
#include <QMimeData>
#include <QTemporaryFile>

#include <algorithm>
#include <limits>
#include <utility>

namespace {

/// The form of an image that a program has put on the clipboard; empty for none.
QString encodedFormat(const QMimeData& data)
{
    for (const char* const format : {"image/png", "image/bmp", "image/jpeg", "image/tiff", "image/webp"}) {
        if (data.hasFormat(QLatin1String(format)))
            return QLatin1String(format);
    }
    return {};
}

NxImage imageOf(const QImage& source)
{
    const bool hasOpacity = source.hasAlphaChannel();
    const QImage pixels = source.convertToFormat(hasOpacity ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    NxImage image;
    image.width = pixels.width();
    image.height = pixels.height();
    image.components = hasOpacity ? 4 : 3;
    const auto rowBytes = static_cast<std::ptrdiff_t>(image.width) * image.components;
    for (int row = image.height - 1; row >= 0; --row)
        image.bytes.insert(image.bytes.end(), pixels.constScanLine(row), pixels.constScanLine(row) + rowBytes);
    return image;
}

} // namespace

ImageReplacement::ImageReplacement(FieldWriter& writer, const HelperOptions& options)
    : m_writer(writer)
    , m_decoder(options)
{
    connect(&m_decoder, &PictureDecoder::decoded, this, &ImageReplacement::takeImage);
    connect(&m_decoder, &PictureDecoder::failed, this, &ImageReplacement::fail);
}

ImageReplacement::~ImageReplacement() = default;

void ImageReplacement::load(const QModelIndex& index, const QString& fileName)
{
    m_pasted.reset();
    decode(index, fileName, orvane::shortLine(QFileInfo(fileName).fileName()));
}

void ImageReplacement::decode(const QModelIndex& index, const QString& fileName, const QString& source)
{
    m_decoder.cancel();
    m_isLoading = false;
    m_index = index;
    m_fields = orvane::fieldsOf(index);
    m_source = source;
    if (m_fields.isEmpty())
        return;
    // The user has chosen the file itself, wherever links lead.
    const QFileInfo info(fileName);
    const QString path = info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
    ImageFolders folders;
    folders.setAllowedFolders({QFileInfo(path).absolutePath()});
    auto file = std::make_unique<ImageFile>(path, folders);
    if (file->state() != ImageFile::State::Open)
        return fail(file->problem());
    m_isLoading = true;
    m_decoder.decode(std::move(file));
}

bool ImageReplacement::isPastable(const QMimeData& data)
{
    return data.hasImage() || !encodedFormat(data).isEmpty() || !orvane::draggedFile(data).isEmpty();
}

void ImageReplacement::paste(const QModelIndex& index, const QMimeData& data)
{
    if (const QString fileName = orvane::draggedFile(data); !fileName.isEmpty())
        return load(index, fileName);
    const QString source = tr("The image on the clipboard");
    if (const QString format = encodedFormat(data); !format.isEmpty()) {
        m_pasted = std::make_unique<QTemporaryFile>();
        const QByteArray bytes = data.data(format);
        if (!m_pasted->open() || m_pasted->write(bytes) != bytes.size() || !m_pasted->flush()) {
            m_source = source;
            return fail(m_pasted->errorString());
        }
        return decode(index, m_pasted->fileName(), source);
    }
    // It was copied in this program.
    m_source = source;
    const FieldSet fields = orvane::fieldsOf(index);
    if (const auto image = data.imageData().value<QImage>(); !fields.isEmpty() && !image.isNull())
        write(fields, imageOf(image));
}

void ImageReplacement::clear(const QModelIndex& index)
{
    const FieldSet fields = orvane::fieldsOf(index);
    m_source = tr("The empty image");
    if (!fields.isEmpty())
        write(fields, {});
}

void ImageReplacement::takeImage()
{
    NxImage image = m_decoder.takeImage();
    m_pasted.reset();
    m_isLoading = false;
    endHelperLater();
    // The row may show another node by now, or be gone.
    const FieldSet fields = std::exchange(m_fields, FieldSet());
    const FieldSet present = orvane::fieldsOf(m_index);
    if (present.isEmpty() || &present.first() != &fields.first())
        return fail(tr("another node is shown by now"));
    write(fields, std::move(image));
}

void ImageReplacement::write(const FieldSet& fields, NxImage&& image)
{
    constexpr int largestSide = std::numeric_limits<short>::max();
    if (image.width > largestSide || image.height > largestSide)
        return fail(tr("it is larger than %1 pixels a side").arg(largestSide));
    const VbVec2s size(static_cast<short>(image.width), static_cast<short>(image.height));
    const orvane::Result<> result = m_writer.change(fields, [&](NxField& field) {
        return static_cast<NxSFImage&>(field).setValue(
            size, image.components, image.bytes.empty() ? nullptr : image.bytes.data());
    });
    if (!result)
        Q_EMIT failed(result.error());
}

// The decoder may still be working on the reply.
void ImageReplacement::endHelperLater()
{
    const auto end = [this] {
        if (!m_isLoading)
            m_decoder.endHelper();
    };
    QMetaObject::invokeMethod(this, end, Qt::QueuedConnection);
}

void ImageReplacement::fail(const QString& reason)
{
    m_pasted.reset();
    m_isLoading = false;
    m_fields = FieldSet();
    endHelperLater();
    Q_EMIT failed(tr("%1 wasn't taken: %2. The field keeps its image.").arg(m_source, reason));
}
