#include "orvane/app/fields/popups/Eyedropper.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPixmap>
#include <QScreen>
#include <QWidget>

Eyedropper::Eyedropper(QWidget* popup)
    : QObject(popup)
    , m_popup(popup)
{
}

Eyedropper::~Eyedropper()
{
    stop();
}

QColor Eyedropper::colorAt(const QPoint& position)
{
    QScreen* const screen = QGuiApplication::screenAt(position);
    if (screen == nullptr)
        return {};
    const QPoint onScreen = position - screen->geometry().topLeft();
    const QImage pixel = screen->grabWindow(0, onScreen.x(), onScreen.y(), 1, 1).toImage();
    return pixel.isNull() ? QColor() : pixel.pixelColor(0, 0);
}

bool Eyedropper::start()
{
    if (!colorAt(m_popup->mapToGlobal(m_popup->rect().center())).isValid())
        return false;
    if (!m_on) {
        m_on = true;
        qApp->installEventFilter(this);
        QGuiApplication::setOverrideCursor(Qt::CrossCursor);
        m_popup->setMouseTracking(true);
        m_popup->grabMouse();
    }
    return true;
}

void Eyedropper::stop()
{
    if (!m_on)
        return;
    m_on = false;
    qApp->removeEventFilter(this);
    QGuiApplication::restoreOverrideCursor();
    m_popup->releaseMouse();
}

bool Eyedropper::eventFilter(QObject* object, QEvent* event)
{
    if (!object->isWidgetType())
        return false;
    switch (event->type()) {
    case QEvent::MouseMove:
        if (const QColor color = colorAt(static_cast<QMouseEvent*>(event)->globalPosition().toPoint()); color.isValid())
            Q_EMIT hovered(color);
        return true;
    case QEvent::MouseButtonPress: {
        const auto* press = static_cast<QMouseEvent*>(event);
        const QColor color = colorAt(press->globalPosition().toPoint());
        stop();
        if (press->button() == Qt::LeftButton && color.isValid())
            Q_EMIT picked(color);
        else
            Q_EMIT cancelled();
        return true;
    }
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::KeyRelease:
        return true;
    case QEvent::ShortcutOverride:
        event->accept();
        return true;
    case QEvent::KeyPress:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
            stop();
            Q_EMIT cancelled();
        }
        return true;
    case QEvent::Hide:
        if (object == m_popup) {
            stop();
            Q_EMIT cancelled();
        }
        return false;
    default:
        return false;
    }
}
