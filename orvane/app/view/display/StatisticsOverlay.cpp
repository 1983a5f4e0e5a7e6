#include "orvane/app/view/display/StatisticsOverlay.h"

#include "orvane/app/look/Look.h"
#include "orvane/app/view/SceneView.h"
#include "orvane/app/view/display/OverlayText.h"

#include <QLocale>
#include <QPainter>

void StatisticsOverlay::setShown(bool isShown)
{
    m_isShown = isShown;
    m_view.update();
}

QStringList StatisticsOverlay::lines() const
{
    const NxDrawingCounts counts = m_view.drawing().counts();
    const QLocale locale(QLocale::English);
    const auto number = [&locale](std::uint64_t value) { return locale.toString(static_cast<qulonglong>(value)); };
    const std::uint64_t bytes = counts.bufferBytes + counts.textureBytes;
    return {tr("Nodes: %1").arg(number(counts.nodes)),
        tr("Meshes in view: %1 of %2").arg(number(counts.drawnItems), number(counts.drawnItems + counts.culledItems)),
        tr("Triangles: %1").arg(number(counts.drawnTriangles)), tr("Draw calls: %1").arg(number(counts.drawCalls)),
        tr("GPU memory: %1").arg(QLocale::c().formattedDataSize(static_cast<qint64>(bytes), 1)),
        tr("Picture: %1 ms").arg(m_view.drawing().pictureMilliseconds(), 0, 'f', 1)};
}

void StatisticsOverlay::paint(QPainter& painter) const
{
    if (!m_isShown || !m_view.drawing().isStarted() || m_view.scene() == nullptr)
        return;
    const int margin = 2 * orvane::look::unit(painter.fontMetrics());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    orvane::paintLines(painter, QPoint(margin, margin), lines());
    painter.restore();
}
