#include "plugins/nodes/TexturePicture.h"

#include "plugins/nodes/Checkers.h"

#include <QPainter>

namespace nodes {

namespace {

constexpr int linesOfPicture = 8;
constexpr int leastLinesOfPicture = 3;

} // namespace

TexturePicture::TexturePicture()
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void TexturePicture::setPicture(const QImage& image, const QString& otherwise)
{
    m_image = image;
    m_text = otherwise;
    updateGeometry();
    update();
}

QSize TexturePicture::sizeHint() const
{
    const int line = fontMetrics().height();
    return {linesOfPicture * line, (m_image.isNull() ? leastLinesOfPicture : linesOfPicture) * line};
}

QSize TexturePicture::minimumSizeHint() const
{
    const int line = fontMetrics().height();
    return {leastLinesOfPicture * line, leastLinesOfPicture * line};
}

void TexturePicture::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (m_image.isNull()) {
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, m_text);
        return;
    }
    QRect place(QPoint(), m_image.size().scaled(size(), Qt::KeepAspectRatio));
    place.moveCenter(rect().center());
    paintCheckers(painter, place);
    // Enlarged, each pixel is a square; made smaller, it is smoothed.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, place.width() < m_image.width());
    painter.drawImage(place, m_image);
}

} // namespace nodes
