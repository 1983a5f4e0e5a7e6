#pragma once

#include <QKeyEvent>

namespace orvane {

/// Whether the key is Return or Enter without modifiers, the key that finishes a line.
[[nodiscard]] inline bool isPlainReturn(const QKeyEvent& key)
{
    return (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter)
        && (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

} // namespace orvane
