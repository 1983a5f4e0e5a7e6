#include "orvane/app/PlainText.h"

#include <QImage>
#include <QTextDocument>
#include <QUrl>

#include <algorithm>

namespace orvane {

namespace {

constexpr char16_t replacement = 0xFFFD;

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
    // A pair that the cut divides becomes a sign for half a pair.
    const qsizetype behind = (length - 1) / 2;
    return oneLine(text.left(length - 1 - behind)) + QChar(0x2026) + oneLine(text.right(behind));
}

QString plainToolTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpacePre) : text;
}

QString menuText(const QString& text)
{
    return shortLine(text).replace(u'&', QStringLiteral("&&"));
}

QString titleText(const QString& text)
{
    // The mark for a changed document, which counts as text when it is doubled.
    return shortLine(text).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
}

void lockTextDocuments()
{
    QTextDocument::setDefaultResourceProvider([](const QUrl& url) {
        if (url.scheme() == QStringLiteral("qrc"))
            return QVariant(); // the document loads it
        // One that is there: for one that isn't, Qt reads the file in another place.
        QImage nothing(1, 1, QImage::Format_ARGB32);
        nothing.fill(Qt::transparent);
        return QVariant::fromValue(nothing);
    });
}

} // namespace orvane
