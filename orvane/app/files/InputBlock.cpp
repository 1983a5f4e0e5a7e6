#include "orvane/app/files/InputBlock.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>

namespace {

bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu:
    case QEvent::InputMethod:
    case QEvent::DragEnter:
    case QEvent::Drop:
    case QEvent::TouchBegin:
    case QEvent::TabletPress:
        return true;
    default:
        return false;
    }
}

} // namespace

InputBlock::InputBlock(QWidget* exempt)
    : m_exempt(exempt)
{
    QCoreApplication::instance()->installEventFilter(this);
}

InputBlock::~InputBlock() = default;

bool InputBlock::eventFilter(QObject* object, QEvent* event)
{
    // The owner of a shortcut is an action.
    if (event->type() == QEvent::Shortcut)
        return true;
    // Events of a window are passed on to one of its widgets, where they are blocked if need be.
    const auto* widget = qobject_cast<QWidget*>(object);
    if (!isInput(event->type()) || widget == nullptr || widget == m_exempt || m_exempt->isAncestorOf(widget))
        return false;
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
        Q_EMIT escapePressed();
    return true;
}
