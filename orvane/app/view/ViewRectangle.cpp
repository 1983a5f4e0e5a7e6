#include "orvane/app/view/ViewRectangle.h"

#include "orvane/app/view/SceneView.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleHints>

#include <cmath>
#include <utility>

ViewRectangle::ViewRectangle(SceneView* view)
    : QObject(view)
    , m_view(view)
{
    view->input().addTool(this);
}

bool ViewRectangle::mousePress(const QMouseEvent& event)
{
    if (m_isPressed || event.button() != Qt::LeftButton || !event.modifiers().testFlag(Qt::ShiftModifier))
        return false;
    m_isPressed = true;
    m_isDrawn = false;
    m_start = event.position();
    m_end = m_start;
    return true;
}

bool ViewRectangle::mouseMove(const QMouseEvent& event)
{
    if (!m_isPressed)
        return false;
    m_end = event.position();
    // A click with an unsteady hand is no rectangle.
    if ((m_end - m_start).manhattanLength() >= QGuiApplication::styleHints()->startDragDistance())
        m_isDrawn = true;
    m_view->setCursor(m_isDrawn ? Qt::CrossCursor : Qt::ArrowCursor);
    m_view->update();
    return true;
}

void ViewRectangle::mouseRelease(const QMouseEvent& event)
{
    m_end = event.position();
    const bool wasDrawn = m_isDrawn;
    end();
    if (!wasDrawn) {
        if (const auto hit = m_view->input().hitAt(m_end))
            Q_EMIT clicked(hit->path);
        return;
    }
    const qreal scale = m_view->devicePixelRatioF();
    const QSize size = (QSizeF(m_view->size()) * scale).toSize();
    const QRectF wanted = rectangle();
    // All pixels that it touches.
    const QRect part(
        QPoint(static_cast<int>(std::floor(wanted.left() * scale)), static_cast<int>(std::floor(wanted.top() * scale))),
        QPoint(
            static_cast<int>(std::ceil(wanted.right() * scale)), static_cast<int>(std::ceil(wanted.bottom() * scale))));
    auto nodes = m_view->drawing().seenIn(part, m_view->viewpoint(), size, static_cast<float>(scale));
    for (std::vector<NxNode*>& path : m_view->input().nodesOfToolsIn(wanted))
        nodes.push_back(std::move(path));
    Q_EMIT drawn(nodes, event.modifiers().testFlag(Qt::ControlModifier) ? Change::TakeAway : Change::Add);
}

void ViewRectangle::cancel()
{
    end();
}

void ViewRectangle::end()
{
    m_isPressed = false;
    m_isDrawn = false;
    m_view->unsetCursor();
    m_view->update();
}

bool ViewRectangle::wantsKey(const QKeyEvent& event) const
{
    return m_isPressed && event.key() == Qt::Key_Escape;
}

bool ViewRectangle::keyPress(const QKeyEvent& event)
{
    if (!m_isPressed || event.key() != Qt::Key_Escape)
        return false;
    m_view->input().cancel();
    return true;
}

void ViewRectangle::paint(QPainter& painter) const
{
    if (!m_isDrawn)
        return;
    QColor inside = m_view->palette().color(QPalette::Highlight);
    constexpr int translucent = 40;
    inside.setAlpha(translucent);
    const QRectF shown = rectangle().adjusted(0.5, 0.5, -0.5, -0.5);
    painter.fillRect(shown, inside);
    // Dark and light in turn, so that it can be seen on any picture.
    painter.setPen(QPen(Qt::black, 1));
    painter.drawRect(shown);
    QPen dashes(Qt::white, 1, Qt::CustomDashLine);
    dashes.setDashPattern({4, 4});
    painter.setPen(dashes);
    painter.drawRect(shown);
}

QRectF ViewRectangle::rectangle() const
{
    return QRectF(m_start, m_end).normalized();
}
