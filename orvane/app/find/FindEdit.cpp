#include "orvane/app/find/FindEdit.h"

#include <QKeyEvent>

void FindEdit::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        if (modifiers == Qt::NoModifier)
            Q_EMIT nextWanted();
        else if (modifiers == Qt::ShiftModifier)
            Q_EMIT previousWanted();
        else if (modifiers == Qt::AltModifier)
            Q_EMIT allWanted();
    } else if (key == Qt::Key_Escape) {
        Q_EMIT endWanted();
    } else if (key == Qt::Key_Down && modifiers == Qt::NoModifier) {
        Q_EMIT left();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void FindEdit::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    Q_EMIT entered();
}
