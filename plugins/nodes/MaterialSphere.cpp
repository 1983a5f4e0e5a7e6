#include "plugins/nodes/MaterialSphere.h"

#include "plugins/nodes/Checkers.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace nodes {

namespace {

constexpr int linesOfSphere = 7;
constexpr int leastLinesOfSphere = 4;
/// From the upper left, towards the viewer.
const VbVec3d lampDirection(-0.4082482904638630, 0.4082482904638630, 0.8164965809277260);
const VbVec3d eyeDirection(0, 0, 1);

} // namespace

MaterialSphere::MaterialSphere()
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void MaterialSphere::setMaterial(const NxMaterial& material)
{
    m_look.emplace(material);
    m_picture = {};
    update();
}

QSize MaterialSphere::sizeHint() const
{
    const int side = linesOfSphere * fontMetrics().height();
    return {side, side};
}

QSize MaterialSphere::minimumSizeHint() const
{
    const int side = leastLinesOfSphere * fontMetrics().height();
    return {side, side};
}

QImage MaterialSphere::picture(int side) const
{
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    if (!m_look)
        return image;
    const double radius = side / 2.0;
    for (int row = 0; row < side; ++row) {
        auto* const pixels = reinterpret_cast<QRgb*>(image.scanLine(row));
        for (int column = 0; column < side; ++column) {
            const double x = (column + 0.5 - radius) / radius;
            const double y = (radius - row - 0.5) / radius;
            const double distance = std::hypot(x, y);
            // How much of the pixel at the border the sphere covers.
            const double cover = std::clamp((1 - distance) * radius + 0.5, 0.0, 1.0);
            if (cover <= 0)
                continue;
            const double inside = std::min(distance, 1.0) / std::max(distance, 1e-30);
            const VbVec3d normal(x * inside, y * inside, std::sqrt(std::max(1 - distance * distance, 0.0)));
            const VbColor color = m_look->colorAt(normal, eyeDirection, lampDirection);
            const auto opacity = static_cast<float>(m_look->opacity() * cover);
            pixels[column] = QColor::fromRgbF(color[0], color[1], color[2], opacity).rgba();
        }
    }
    return image;
}

void MaterialSphere::paintEvent(QPaintEvent* /*event*/)
{
    const int side = std::min(width(), height());
    const auto pixels = static_cast<int>(std::lround(side * devicePixelRatioF()));
    if (pixels <= 0)
        return;
    if (m_picture.width() != pixels) {
        m_picture = picture(pixels);
        m_picture.setDevicePixelRatio(devicePixelRatioF());
    }
    QPainter painter(this);
    const QRect place((width() - side) / 2, (height() - side) / 2, side, side);
    paintCheckers(painter, place);
    painter.drawImage(place, m_picture);
}

} // namespace nodes
