#include "FieldEditors/MFWidgets/CellText.h"

#include <QFontMetrics>
#include <QString>

#include <algorithm>

namespace {

/// The end of the character that begins at `start`. Half a character would be drawn as a box.
qsizetype characterEnd(const QString& text, qsizetype start)
{
    const bool isPair
        = text.at(start).isHighSurrogate() && start + 1 < text.size() && text.at(start + 1).isLowSurrogate();
    return start + (isPair ? 2 : 1);
}

bool fits(const QString& text, const QFontMetrics& metrics, int room)
{
    // Most cells hold a short number in a wide column, which needs no measuring: its glyphs are the font's own.
    const auto isAscii = [](QChar character) { return character.unicode() < 0x80; };
    if (text.size() <= room && text.size() * metrics.maxWidth() <= room
        && std::all_of(text.begin(), text.end(), isAscii))
        return true;
    // The beginning of a text that is far too long is enough to decide.
    constexpr qsizetype beginning = 64;
    for (qsizetype size = beginning; size < text.size(); size *= 2) {
        if (metrics.horizontalAdvance(text.left(size)) > 2 * room)
            return false;
    }
    return metrics.horizontalAdvance(text) <= room;
}

} // namespace

QString orvane::fittingText(const QString& text, const QFontMetrics& metrics, int room)
{
    if (text.isEmpty() || fits(text, metrics, room))
        return text;
    const QString dots = QStringLiteral("...");
    const auto fitsAhead = [&](qsizetype count) { return metrics.horizontalAdvance(dots + text.left(count)) < room; };
    // Finds how many characters fit by doubling, then by bisection, since each measurement lays out a text.
    qsizetype shown = 0;
    qsizetype beyond = 1;
    for (; beyond <= text.size() && fitsAhead(beyond); beyond *= 2)
        shown = beyond;
    beyond = std::min(beyond, text.size() + 1);
    while (beyond - shown > 1) {
        const qsizetype middle = shown + (beyond - shown) / 2;
        (fitsAhead(middle) ? shown : beyond) = middle;
    }
    if (shown > 0 && shown < text.size() && text.at(shown - 1).isHighSurrogate() && text.at(shown).isLowSurrogate())
        --shown;
    return text.left(std::max(shown, characterEnd(text, 0))) + dots;
}
