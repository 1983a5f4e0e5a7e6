#include "orvane/app/fields/popups/PopupFrame.h"

#include "orvane/app/input/NumberLine.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>

#include <algorithm>

PopupFrame::PopupFrame(QWidget* parent)
    : QFrame(parent, Qt::Popup)
{
    setFrameShape(StyledPanel);
}

void PopupFrame::openAt(const QRect& cell)
{
    const QSize size = sizeHint().expandedTo(minimumSize()).boundedTo(maximumSize());
    const QScreen* screen = QGuiApplication::screenAt(cell.center());
    if (screen == nullptr)
        screen = QGuiApplication::primaryScreen();
    const QRect room = screen->availableGeometry();
    const bool fitsBelow = cell.bottom() + size.height() <= room.bottom();
    const bool opensAbove = !fitsBelow && cell.top() - room.top() > room.bottom() - cell.bottom();
    const int top = opensAbove ? cell.top() - size.height() : cell.bottom() + 1;
    setGeometry(std::clamp(cell.left(), room.left(), std::max(room.left(), room.right() + 1 - size.width())),
        std::clamp(top, room.top(), std::max(room.top(), room.bottom() + 1 - size.height())), size.width(),
        size.height());
    m_open = true;
    show();
}

void PopupFrame::addLine(NumberLine* line)
{
    m_lines.push_back(line);
    line->installEventFilter(this);
}

bool PopupFrame::acceptLines()
{
    return std::all_of(
        m_lines.begin(), m_lines.end(), [](NumberLine* line) { return !line->isPending() || line->accept(); });
}

bool PopupFrame::eventFilter(QObject* object, QEvent* event)
{
    const bool isLine = std::find(m_lines.begin(), m_lines.end(), object) != m_lines.end();
    if (!isLine || event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(object, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return QFrame::eventFilter(object, event);
    if (acceptLines())
        finish(true);
    return true;
}

void PopupFrame::mousePressEvent(QMouseEvent* event)
{
    if (rect().contains(event->position().toPoint()))
        return;
    // The focus doesn't leave a line of its own accord when its popup closes.
    if (acceptLines())
        finish(true);
}

void PopupFrame::finish(bool accept)
{
    if (!m_open)
        return;
    m_open = false;
    hide();
    if (accept)
        Q_EMIT accepted();
    else
        Q_EMIT rejected();
}

void PopupFrame::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        finish(false);
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        finish(true);
    else
        QFrame::keyPressEvent(event);
}

void PopupFrame::hideEvent(QHideEvent* event)
{
    QFrame::hideEvent(event);
    if (!event->spontaneous())
        finish(true);
}
