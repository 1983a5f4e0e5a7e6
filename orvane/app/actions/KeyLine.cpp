#include "orvane/app/actions/KeyLine.h"

#include "orvane/app/language/FollowLanguage.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace {

bool isModifier(int key)
{
    constexpr std::array modifiers{Qt::Key_Control, Qt::Key_Shift, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_AltGr,
        Qt::Key_CapsLock, Qt::Key_NumLock, Qt::Key_unknown};
    return std::ranges::find(modifiers, key) != modifiers.end();
}

} // namespace

KeyLine::KeyLine(QWidget* parent)
    : QLineEdit(parent)
{
    setReadOnly(true);
    setContextMenuPolicy(Qt::NoContextMenu);
    orvane::followLanguage(this, [this] {
        setPlaceholderText(tr("Press the new key"));
        setAccessibleName(tr("New key"));
    });
}

bool KeyLine::event(QEvent* event)
{
    // Nothing that is pressed here is a shortcut.
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void KeyLine::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (isModifier(key))
        return;
    if (key == Qt::Key_Escape) {
        Q_EMIT left();
        return;
    }
    Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    // Shift is in the sign already, such as "+" or "?", but letters and keys without a sign need it.
    const QString text = event->text();
    const bool isSign = text.size() == 1 && text.front().isPrint() && !text.front().isLetter() && key != Qt::Key_Space;
    if (isSign)
        modifiers &= ~Qt::ShiftModifier;
    Q_EMIT pressed(QKeySequence(QKeyCombination(modifiers, static_cast<Qt::Key>(key))));
}
