#include "orvane/extender/detail/JsonTokens.h"

#include <QRegularExpression>

#include <algorithm>
#include <optional>

namespace orvane {

namespace {

using Kind = JsonToken::Kind;

std::optional<Kind> punctuation(QChar character)
{
    switch (character.unicode()) {
    case u'{':
        return Kind::ObjectBegin;
    case u'}':
        return Kind::ObjectEnd;
    case u'[':
        return Kind::ArrayBegin;
    case u']':
        return Kind::ArrayEnd;
    case u':':
        return Kind::Colon;
    case u',':
        return Kind::Comma;
    default:
        return std::nullopt;
    }
}

std::optional<QChar> simpleEscape(QChar character)
{
    switch (character.unicode()) {
    case u'"':
    case u'\\':
    case u'/':
        return character;
    case u'b':
        return u'\b';
    case u'f':
        return u'\f';
    case u'n':
        return u'\n';
    case u'r':
        return u'\r';
    case u't':
        return u'\t';
    default:
        return std::nullopt;
    }
}

bool isBlank(QChar character)
{
    return character == u' ' || character == u'\t' || character == u'\n' || character == u'\r';
}

bool isHexDigit(QChar character)
{
    return (character >= u'0' && character <= u'9') || (character.toLower() >= u'a' && character.toLower() <= u'f');
}

bool belongsToWord(QChar character)
{
    return character.isLetterOrNumber() || character == u'-' || character == u'+' || character == u'.'
        || character == u'_';
}

bool isNumber(const QString& word)
{
    static const QRegularExpression number(QStringLiteral(R"(\A-?(0|[1-9][0-9]*)(\.[0-9]+)?([eE][-+]?[0-9]+)?\z)"));
    return number.match(word).hasMatch();
}

} // namespace

JsonTokens::JsonTokens(const QString& text)
    : m_text(text)
{
}

JsonToken JsonTokens::next()
{
    skipBlanks();
    m_start = m_position;
    if (isAtEnd())
        return {Kind::End, m_start, {}};
    const QChar character = m_text.at(m_at);
    if (const auto kind = punctuation(character)) {
        take();
        return {*kind, m_start, {}};
    }
    return character == u'"' ? string() : word();
}

void JsonTokens::skipBlanks()
{
    while (!isAtEnd() && isBlank(m_text.at(m_at)))
        take();
}

QChar JsonTokens::take()
{
    const QChar character = m_text.at(m_at++);
    if (character == u'\n')
        m_position = {m_position.line + 1, 1};
    else if (!character.isLowSurrogate())
        ++m_position.column;
    return character;
}

JsonToken JsonTokens::string()
{
    QString content;
    take();
    while (!isAtEnd()) {
        const meridane::TextPosition here = m_position;
        const QChar character = take();
        if (character == u'"')
            return {Kind::String, m_start, content};
        if (character < u' ')
            return {Kind::Bad, here, QStringLiteral("a control character in a text must be escaped")};
        if (character != u'\\') {
            content += character;
            continue;
        }
        const QChar escape = isAtEnd() ? QChar() : take();
        if (const auto plain = simpleEscape(escape)) {
            content += *plain;
            continue;
        }
        const QStringView code = QStringView(m_text).sliced(m_at).left(4);
        if (escape != u'u' || code.size() < 4 || !std::ranges::all_of(code, isHexDigit))
            return {Kind::Bad, here, QStringLiteral("there is no such escape sequence")};
        for (int digit = 0; digit < 4; ++digit)
            take();
        content += QChar(code.toUShort(nullptr, 16));
    }
    return {Kind::Bad, m_start, QStringLiteral("the text that begins here has no closing quotation mark")};
}

JsonToken JsonTokens::word()
{
    QString text;
    while (!isAtEnd() && belongsToWord(m_text.at(m_at)))
        text += take();
    if (text == u"true")
        return {Kind::True, m_start, {}};
    if (text == u"false")
        return {Kind::False, m_start, {}};
    if (text == u"null")
        return {Kind::Null, m_start, {}};
    if (isNumber(text))
        return {Kind::Number, m_start, {}};
    if (text.isEmpty())
        text = take();
    return {Kind::Unknown, m_start, text};
}

} // namespace orvane
