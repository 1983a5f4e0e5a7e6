#include "orvane/app/view/handles/HandleNumbers.h"

#include <QLatin1String>
#include <QRegularExpression>

#include <cmath>

bool HandleNumbers::type(QChar character)
{
    const QChar lower = character.toLower();
    if (!lower.isDigit() && !QStringLiteral("xyz+-., e").contains(lower))
        return false;
    m_text.append(lower == u',' ? QChar(u'.') : lower);
    return true;
}

std::optional<HandleDrag::Numbers> HandleNumbers::numbers(int axis) const
{
    static const QRegularExpression part(
        QStringLiteral("\\G\\s*([xyz]?)\\s*([+-]?(?:[0-9]+\\.?[0-9]*|\\.[0-9]+)(?:e[+-]?[0-9]+)?)\\s*"));
    HandleDrag::Numbers numbers;
    qsizetype at = 0;
    while (at < m_text.size()) {
        const QRegularExpressionMatch match = part.match(m_text, at);
        if (!match.hasMatch() || (at > 0 && match.captured(1).isEmpty()))
            return {};
        at = match.capturedEnd();
        const double value = match.captured(2).toDouble();
        if (!std::isfinite(value))
            return {};
        const qsizetype letter = match.captured(1).isEmpty() ? axis : QStringLiteral("xyz").indexOf(match.captured(1));
        if (letter < 0)
            numbers = {value, value, value};
        else
            numbers[static_cast<std::size_t>(letter)] = value;
    }
    return at > 0 ? std::optional(numbers) : std::nullopt;
}
