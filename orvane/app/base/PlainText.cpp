#include "orvane/app/base/PlainText.h"

#include <QStringList>
#include <QTextDocument>

namespace orvane {

namespace {

constexpr char16_t replacement = 0xFFFD;
// Limits of a tool tip.
constexpr qsizetype mostInALine = 100;
constexpr qsizetype mostLines = 20;

// Marks that turn the direction of writing: with them a name could rearrange the text around it.
bool turnsDirection(char16_t unit)
{
    return (unit >= 0x202A && unit <= 0x202E) || (unit >= 0x2066 && unit <= 0x2069);
}

bool isControl(char16_t unit)
{
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || unit == QChar::LineSeparator
        || unit == QChar::ParagraphSeparator || turnsDirection(unit);
}

char16_t signFor(char16_t unit)
{
    constexpr char16_t pictures = 0x2400; // of the first control characters, in their order
    constexpr char16_t pictureOfDelete = 0x2421;
    constexpr char16_t pictureOfNewLine = 0x2424;
    if (unit < 0x20)
        return static_cast<char16_t>(pictures + unit);
    if (unit == 0x7F)
        return pictureOfDelete;
    return unit == QChar::LineSeparator || unit == QChar::ParagraphSeparator ? pictureOfNewLine : replacement;
}

// A half of a pair without its other half.
bool isLoneSurrogate(QStringView text, qsizetype i)
{
    if (text[i].isHighSurrogate())
        return i + 1 == text.size() || !text[i + 1].isLowSurrogate();
    return text[i].isLowSurrogate() && (i == 0 || !text[i - 1].isHighSurrogate());
}

} // namespace

QString oneLine(const QString& text)
{
    QString line = text;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        if (isControl(unit))
            line[i] = QChar(signFor(unit));
        else if (text[i].isSurrogate() && isLoneSurrogate(text, i))
            line[i] = QChar(replacement);
    }
    return line;
}

QString shortLine(const QString& text, qsizetype length)
{
    if (text.size() <= length)
        return oneLine(text);
    // If the cut divides a surrogate pair, each half is replaced by a visible sign.
    const qsizetype behind = (length - 1) / 2;
    return oneLine(text.left(length - 1 - behind)) + QChar(0x2026) + oneLine(text.right(behind));
}

QString plainToolTip(const QString& text)
{
    QStringList lines;
    for (QString rest : text.split(u'\n')) {
        while (rest.size() > mostInALine) {
            const qsizetype blank = rest.lastIndexOf(u' ', mostInALine - 1);
            const qsizetype length = blank > mostInALine / 2 ? blank + 1 : mostInALine;
            lines.append(oneLine(rest.left(length)));
            rest = rest.mid(length);
        }
        lines.append(oneLine(rest));
    }
    if (lines.size() > mostLines)
        lines = lines.mid(0, mostLines - 1) + QStringList(QChar(0x2026));
    QString plain = lines.join(u'\n');
    if (!Qt::mightBeRichText(plain))
        return plain;
    // Prevents that Qt breaks the lines again for a narrower tool tip.
    return QStringLiteral("<div style=\"white-space: pre\">%1</div>").arg(plain.toHtmlEscaped());
}

QString menuText(const QString& text)
{
    return shortLine(text).replace(u'&', QStringLiteral("&&"));
}

QString titleText(const QString& text)
{
    // Qt replaces [*] by the mark of a modified document unless it is doubled.
    return shortLine(text).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

} // namespace orvane
