#include "plugins/nodes/LightDiagram.h"

#include "plugins/nodes/NumberText.h"

#include "meridane/scene/fields/EffectiveField.h"
#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numbers>

using meridane::effectiveField;

namespace nodes {

namespace {

constexpr int linesOfLight = 6;
const QColor ground(0x20, 0x22, 0x25);
const QColor writing(0xd0, 0xd0, 0xd0);

QColor colorOf(const NxLight& light)
{
    if (effectiveField(light.on).getValue() == 0)
        return ground;
    const VbColor& color = effectiveField(light.color).getValue();
    const auto intensity = std::clamp(static_cast<double>(effectiveField(light.intensity).getValue()), 0.0, 1.0);
    const auto part = [&](std::size_t i) {
        return static_cast<float>(std::clamp(static_cast<double>(color[i]) * intensity, 0.0, 1.0));
    };
    return QColor::fromRgbF(part(0), part(1), part(2));
}

/// The colour where that share of the light arrives.
QColor faded(const QColor& color, double share)
{
    const auto part = [&](int light, int dark) { return static_cast<int>(std::lround(dark + (light - dark) * share)); };
    return {part(color.red(), ground.red()), part(color.green(), ground.green()), part(color.blue(), ground.blue())};
}

std::array<double, 3> fadingOf(const NxPointLight& light)
{
    const VbVec3f& factors = effectiveField(light.attenuation).getValue();
    return {static_cast<double>(factors[0]), static_cast<double>(factors[1]), static_cast<double>(factors[2])};
}

double shareAt(const std::array<double, 3>& factors, double distance)
{
    const double divisor = factors[0] + factors[1] * distance + factors[2] * distance * distance;
    return divisor > 1 ? 1 / divisor : 1; // 1 for a divisor that is no number, too
}

} // namespace

double reachOf(const NxPointLight& light)
{
    const std::array<double, 3> factors = fadingOf(light);
    constexpr double tenth = 0.1;
    constexpr double farthest = 1e9;
    if (shareAt(factors, farthest) >= tenth)
        return std::numeric_limits<double>::infinity();
    double near = 0;
    double far = farthest;
    constexpr int halves = 80;
    for (int half = 0; half < halves; ++half) {
        const double middle = (near + far) / 2;
        (shareAt(factors, middle) >= tenth ? near : far) = middle;
    }
    return far;
}

LightDiagram::LightDiagram()
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void LightDiagram::setLight(const NxDirectionalLight& light)
{
    m_kind = Kind::Rays;
    m_color = colorOf(light);
    update();
}

void LightDiagram::setLight(const NxPointLight& light)
{
    m_kind = Kind::Reach;
    m_color = colorOf(light);
    m_reach = reachOf(light);
    m_fading = [factors = fadingOf(light)](double distance) { return shareAt(factors, distance); };
    update();
}

void LightDiagram::setLight(const NxSpotLight& light)
{
    m_kind = Kind::Cone;
    m_color = colorOf(light);
    const auto angle = static_cast<double>(effectiveField(light.cutOffAngle).getValue());
    m_cutOff = angle >= 0 ? std::min(angle, std::numbers::pi / 2) : 0;
    const auto rate = static_cast<double>(effectiveField(light.dropOffRate).getValue());
    m_dropOff = rate >= 0 ? std::min(rate, 1.0) : 0;
    update();
}

QSize LightDiagram::sizeHint() const
{
    const int height = linesOfLight * fontMetrics().height();
    return {2 * height, height};
}

void LightDiagram::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), ground);
    switch (m_kind) {
    case Kind::Rays:
        paintRays(painter);
        break;
    case Kind::Reach:
        paintReach(painter);
        break;
    case Kind::Cone:
        paintCone(painter);
        break;
    case Kind::None:
        break;
    }
}

void LightDiagram::paintRays(QPainter& painter) const
{
    constexpr int rays = 5;
    constexpr double head = 5;
    painter.setPen(QPen(m_color, 2, Qt::SolidLine, Qt::RoundCap));
    const double left = width() * 0.15;
    const double right = width() * 0.85;
    for (int ray = 0; ray < rays; ++ray) {
        const double y = height() * (ray + 1.0) / (rays + 1);
        painter.drawLine(QPointF(left, y), QPointF(right, y));
        painter.drawLine(QPointF(right, y), QPointF(right - head, y - head));
        painter.drawLine(QPointF(right, y), QPointF(right - head, y + head));
    }
}

void LightDiagram::paintReach(QPainter& painter) const
{
    // Up to the reach; a light that reaches everywhere is as bright at the border.
    const QPointF center(width() / 2.0, height() / 2.0);
    const double radius = std::min(width(), height()) * 0.46;
    QRadialGradient gradient(center, radius);
    constexpr int stops = 24;
    for (int stop = 0; stop <= stops; ++stop) {
        const double place = static_cast<double>(stop) / stops;
        const double distance = std::isfinite(m_reach) ? place * m_reach : 0;
        gradient.setColorAt(place, faded(m_color, m_fading(distance)));
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(gradient);
    painter.drawEllipse(center, radius, radius);
    painter.setPen(writing);
    const QString text = std::isfinite(m_reach) ? tr("a tenth at %1").arg(numberText(m_reach)) : tr("no end");
    painter.drawText(rect().adjusted(4, 0, -4, -2), Qt::AlignRight | Qt::AlignBottom, text);
}

void LightDiagram::paintCone(QPainter& painter) const
{
    const QPointF tip(width() * 0.08, height() / 2.0);
    const double length = width() * 0.86;
    constexpr int parts = 48;
    const double inner = m_cutOff * (1 - m_dropOff);
    painter.setPen(Qt::NoPen);
    painter.setRenderHint(QPainter::Antialiasing, false); // it would leave seams between the parts
    for (int part = 0; part < parts; ++part) {
        const auto angleAt = [&](int number) { return m_cutOff * (2.0 * number / parts - 1); };
        const double middle = std::abs((angleAt(part) + angleAt(part + 1)) / 2);
        const double share = middle <= inner ? 1 : (m_cutOff - middle) / std::max(m_cutOff - inner, 1e-4);
        const auto pointAt = [&](double angle) { return tip + QPointF(std::cos(angle), std::sin(angle)) * length; };
        painter.setBrush(faded(m_color, share));
        painter.drawPolygon(QPolygonF{tip, pointAt(angleAt(part)), pointAt(angleAt(part + 1))});
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ground, 1, Qt::DashLine));
    painter.drawLine(tip, tip + QPointF(length, 0));
    constexpr double degrees = 180 / std::numbers::pi;
    painter.setPen(writing);
    painter.drawText(rect().adjusted(4, 0, -4, -2), Qt::AlignLeft | Qt::AlignBottom,
        tr("%1° wide").arg(numberText(std::round(2 * m_cutOff * degrees * 10) / 10)));
}

} // namespace nodes
