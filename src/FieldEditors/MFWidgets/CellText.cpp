#include "FieldEditors/MFWidgets/CellText.h"

#include <QFontMetrics>
#include <QString>

#include <algorithm>

namespace {

/// The end of the character that begins there: half of one would be drawn as a box.
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
    // Of a text that is far too long its beginning tells as much: characters are rarely narrower than a pixel.
    const qsizetype enough = std::max(4 * room, 64);
    if (text.size() > enough && metrics.horizontalAdvance(text.left(enough)) > 2 * room)
        return false;
    return metrics.horizontalAdvance(text) <= room;
}

} // namespace

QString orvane::fittingText(const QString& text, const QFontMetrics& metrics, int room)
{
    if (text.isEmpty() || fits(text, metrics, room))
        return text;
    const QString dots = QStringLiteral("...");
    QString shown = dots;
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype end = characterEnd(text, start);
        const QString longer = shown + text.mid(start, end - start);
        if (metrics.horizontalAdvance(longer) >= room)
            break;
        shown = longer;
        start = end;
    }
    shown.remove(0, dots.size());
    if (shown.isEmpty())
        shown = text.left(characterEnd(text, 0));
    return shown + dots;
}
