#pragma once

#include "orvane/app/view/handles/HandleDrag.h"

#include <QString>

/// What is typed while handles are dragged: numbers, each behind the letter of its axis or without one, such as `2.5`,
/// `x 2.5` or `x 1 z -3`. A comma is a decimal point.
class HandleNumbers {
public:
    /// Takes a character, or a backspace. Returns false for one that can't be part of numbers.
    bool type(QChar character);
    void removeLast() { m_text.chop(1); }
    void clear() { m_text.clear(); }
    [[nodiscard]] const QString& text() const noexcept { return m_text; }
    [[nodiscard]] bool isEmpty() const noexcept { return m_text.isEmpty(); }

    /// The numbers; nothing as long as they aren't complete. One without a letter is for `axis`: 0 to 2, or -1 for all.
    [[nodiscard]] std::optional<HandleDrag::Numbers> numbers(int axis) const;

private:
    QString m_text;
};
