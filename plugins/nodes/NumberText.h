#pragma once

#include <QString>

#include <span>

namespace nodes {

/// A number with six digits at most, with a point as decimal sign, as values are shown everywhere.
[[nodiscard]] inline QString numberText(double number)
{
    return QString::number(number, 'g', 6);
}

/// Numbers with that text between them.
[[nodiscard]] inline QString numbersText(std::span<const double> numbers, const QString& between)
{
    QString text;
    for (const double number : numbers)
        text += (text.isEmpty() ? QString() : between) + numberText(number);
    return text;
}

} // namespace nodes
