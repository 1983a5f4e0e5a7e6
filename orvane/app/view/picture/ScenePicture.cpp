#include "orvane/app/view/picture/ScenePicture.h"

#include "orvane/app/view/ViewColors.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QRect>

#include <algorithm>
#include <array>
#include <cstring>

using orvane::Failure;
using orvane::Result;

namespace {

struct ScenePictureText {
    Q_DECLARE_TR_FUNCTIONS(ScenePicture)
};

/// The longest side of a part, which every driver takes, and how far it is drawn beyond its borders: points and lines
/// whose middle is outside are left out.
constexpr int partSide = 2048;
constexpr int partMargin = 32;
/// The height of a picture, in pixels, in which lines and points have the widths that they have on the screen.
constexpr float usualHeight = 800;
constexpr int fullOpacity = 255;

/// What is left of a colour on black and on white: the same where it is opaque, black and white where nothing is.
QRgb withOpacity(QRgb onBlack, QRgb onWhite)
{
    const int difference
        = qRed(onWhite) - qRed(onBlack) + qGreen(onWhite) - qGreen(onBlack) + qBlue(onWhite) - qBlue(onBlack);
    const int opacity = std::clamp(fullOpacity - (difference + 1) / 3, 0, fullOpacity);
    if (opacity == 0)
        return qRgba(0, 0, 0, 0);
    const auto whole
        = [opacity](int part) { return std::min((part * fullOpacity + opacity / 2) / opacity, fullOpacity); };
    return qRgba(whole(qRed(onBlack)), whole(qGreen(onBlack)), whole(qBlue(onBlack)), opacity);
}

/// The two pictures are of the same size.
QImage withOpacity(const QImage& onBlack, const QImage& onWhite)
{
    QImage picture(onBlack.size(), QImage::Format_ARGB32);
    for (int y = 0; y < picture.height(); ++y) {
        const auto* const black = reinterpret_cast<const QRgb*>(onBlack.constScanLine(y));
        const auto* const white = reinterpret_cast<const QRgb*>(onWhite.constScanLine(y));
        auto* const line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x)
            line[x] = withOpacity(black[x], white[x]);
    }
    return picture;
}

/// Copies a part of the picture from where it was drawn, with the margin around it.
void copyPart(QImage& picture, const QRect& part, const QImage& drawn, const QRect& drawnPart)
{
    constexpr std::size_t pixelBytes = 4;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const uchar* const from = drawn.constScanLine(y - drawnPart.top())
            + static_cast<std::size_t>(part.left() - drawnPart.left()) * pixelBytes;
        std::memcpy(picture.scanLine(y) + static_cast<std::size_t>(part.left()) * pixelBytes, from,
            static_cast<std::size_t>(part.width()) * pixelBytes);
    }
}

NxViewpoint partialView(NxViewpoint viewpoint, const QRect& part, const QSize& size)
{
    const auto share = [](int pixels, int all) { return static_cast<float>(pixels) / static_cast<float>(all); };
    viewpoint.partMin
        = VbVec2f(share(part.left(), size.width()), share(size.height() - part.top() - part.height(), size.height()));
    viewpoint.partMax
        = VbVec2f(share(part.left() + part.width(), size.width()), share(size.height() - part.top(), size.height()));
    return viewpoint;
}

} // namespace

QString ScenePicture::sizeLimits()
{
    return ScenePictureText::tr("at most %1 pixels a side and %2 million in all")
        .arg(longestSide)
        .arg(mostPixels / 1000000);
}

bool ScenePicture::isUsableSize(const QSize& size)
{
    return !size.isEmpty() && size.width() <= longestSide && size.height() <= longestSide
        && qint64{size.width()} * size.height() <= mostPixels;
}

ScenePicture::ScenePicture(NxGroup* scene, const QString& folder, const QStringList& allowedFolders)
{
    m_style.grid = false;
    m_style.axes = false;
    m_drawing.setScene(scene, folder);
    m_drawing.textures().setAllowedFolders(allowedFolders);
}

Result<> ScenePicture::start()
{
    if (m_drawing.start())
        return {};
    return Failure{m_drawing.problem()};
}

Result<NxViewpoint> ScenePicture::framed(const QSize& size)
{
    if (const auto started = start(); !started)
        return Failure{started.error()};
    NxViewpoint viewpoint = orvane::firstViewpoint();
    if (const NxBounds bounds = m_drawing.bounds(); !bounds.isEmpty())
        viewpoint.frame(bounds.min, bounds.max, static_cast<float>(size.width()) / static_cast<float>(size.height()));
    return viewpoint;
}

void ScenePicture::setBackground(const QColor& color)
{
    m_style.backgroundBottom = VbColor(color.redF(), color.greenF(), color.blueF());
    m_style.backgroundTop = m_style.backgroundBottom;
    m_drawing.setStyle(m_style);
}

void ScenePicture::waitForImages()
{
    QEventLoop loop;
    while (m_drawing.textures().isLoading())
        loop.processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::ExcludeUserInputEvents);
}

QImage ScenePicture::drawPart(const NxViewpoint& viewpoint, const QRect& part, const QSize& size)
{
    const NxViewpoint partial = partialView(viewpoint, part, size);
    const float scale = std::max(static_cast<float>(size.height()) / usualHeight, 1.0F);
    QImage picture;
    do {
        waitForImages();
        picture = m_drawing.draw(partial, part.size(), scale);
    } while (m_drawing.textures().isLoading()); // the part was the first to ask for them
    return picture.size() == part.size() ? picture : QImage();
}

QImage ScenePicture::drawPart(
    const NxViewpoint& viewpoint, const QRect& part, const QSize& size, const QColor& background)
{
    if (background.alpha() == fullOpacity) {
        setBackground(background);
        return drawPart(viewpoint, part, size);
    }
    setBackground(Qt::black);
    const QImage onBlack = drawPart(viewpoint, part, size);
    setBackground(Qt::white);
    const QImage onWhite = drawPart(viewpoint, part, size);
    return onBlack.isNull() || onWhite.isNull() ? QImage() : withOpacity(onBlack, onWhite);
}

Result<QImage> ScenePicture::draw(
    const NxViewpoint& viewpoint, const QSize& size, const QColor& background, const Progress& progress)
{
    if (const auto started = start(); !started)
        return Failure{started.error()};
    const QString noMemory = ScenePictureText::tr("There is no memory for a picture of %1x%2 pixels.")
                                 .arg(size.width())
                                 .arg(size.height());
    QImage picture(size, background.alpha() == fullOpacity ? QImage::Format_RGB32 : QImage::Format_ARGB32);
    if (picture.isNull())
        return Failure{noMemory};
    const QRect whole(QPoint(0, 0), size);
    for (int top = 0; top < size.height(); top += partSide) {
        for (int left = 0; left < size.width(); left += partSide) {
            const double done = (top + static_cast<double>(left) / size.width() * partSide) / size.height();
            if (progress && !progress(std::min(done, 1.0)))
                return Failure{QString()};
            const QRect part = QRect(left, top, partSide, partSide).intersected(whole);
            const QRect drawnPart = part.adjusted(-partMargin, -partMargin, partMargin, partMargin).intersected(whole);
            const QImage drawn = drawPart(viewpoint, drawnPart, size, background);
            if (drawn.isNull())
                return Failure{noMemory};
            copyPart(picture, part, drawn, drawnPart);
        }
    }
    return picture;
}
