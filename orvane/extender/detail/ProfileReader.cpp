#include "orvane/extender/detail/ProfileReader.h"

#include "meridane/base/values/Unicode.h"

#include <QSet>

#include <algorithm>
#include <string_view>

namespace orvane {

namespace {

// A text of the file, made fit for a message of one line.
QString quoted(QString text)
{
    constexpr qsizetype longest = 40;
    if (text.size() > longest)
        text = text.left(longest) + u'\u2026';
    for (QChar& character : text) {
        const bool breaksTheLine = character == QChar::LineSeparator || character == QChar::ParagraphSeparator;
        if ((!character.isPrint() && !character.isSurrogate()) || breaksTheLine)
            character = QChar::ReplacementCharacter;
    }
    return u'"' + text + u'"';
}

QString describe(const JsonToken& token)
{
    switch (token.kind) {
    case JsonToken::Kind::ObjectBegin:
        return QStringLiteral("an object");
    case JsonToken::Kind::ObjectEnd:
        return QStringLiteral("\"}\"");
    case JsonToken::Kind::ArrayBegin:
        return QStringLiteral("a list");
    case JsonToken::Kind::ArrayEnd:
        return QStringLiteral("\"]\"");
    case JsonToken::Kind::Colon:
        return QStringLiteral("\":\"");
    case JsonToken::Kind::Comma:
        return QStringLiteral("\",\"");
    case JsonToken::Kind::String:
        return QStringLiteral("the text %1").arg(quoted(token.text));
    case JsonToken::Kind::True:
        return QStringLiteral("true");
    case JsonToken::Kind::False:
        return QStringLiteral("false");
    case JsonToken::Kind::Null:
        return QStringLiteral("null");
    case JsonToken::Kind::Number:
        return QStringLiteral("a number");
    case JsonToken::Kind::End:
        return QStringLiteral("the end of the file");
    case JsonToken::Kind::Unknown:
    case JsonToken::Kind::Bad:
        break;
    }
    return quoted(token.text);
}

} // namespace

ProfileReader::ProfileReader(const QByteArray& json, const QString& fileName)
    : m_fileName(fileName)
    , m_tokens({})
{
    if (decode(json))
        advance();
}

bool ProfileReader::read()
{
    return m_error.isEmpty() && readProfile();
}

bool ProfileReader::decode(const QByteArray& json)
{
    const std::string_view utf8
        = meridane::withoutByteOrderMark({json.constData(), static_cast<std::size_t>(json.size())});
    const std::size_t invalid = meridane::findInvalidUtf8(utf8);
    const auto valid = utf8.substr(0, invalid);
    m_tokens = JsonTokens(QString::fromUtf8(valid.data(), static_cast<qsizetype>(valid.size())));
    return invalid == std::string_view::npos
        || fail(meridane::positionOf(utf8, invalid), QStringLiteral("it isn't valid UTF-8"));
}

bool ProfileReader::readProfile()
{
    if (m_token.kind != Kind::ObjectBegin)
        return failExpecting("an object, the profile");
    const meridane::TextPosition begin = m_token.position;
    if (!readObject([this](const JsonToken& key) { return readMember(key); }))
        return false;
    advance();
    if (m_token.kind != Kind::End)
        return failExpecting("nothing behind the profile");
    if (!m_name)
        return fail(begin, QStringLiteral("the profile has no \"name\""));
    if (!m_entries)
        return fail(begin, QStringLiteral("the profile has no \"extensions\""));
    return true;
}

bool ProfileReader::readMember(const JsonToken& key)
{
    if (key.text == u"name")
        return readName();
    if (key.text != u"extensions")
        return fail(key.position,
            QStringLiteral("a profile has a \"name\" and \"extensions\", but no %1").arg(quoted(key.text)));
    if (m_token.kind != Kind::ObjectBegin)
        return failExpecting("an object, the extensions");
    m_entries.emplace();
    return readObject([this](const JsonToken& entry) { return readEntry(entry); });
}

bool ProfileReader::readName()
{
    if (m_token.kind != Kind::String)
        return failExpecting("a text, the profile's name");
    if (m_token.text.trimmed().isEmpty())
        return fail(m_token.position, QStringLiteral("the profile's name is empty"));
    m_name = m_token.text;
    return true;
}

bool ProfileReader::readEntry(const JsonToken& key)
{
    if (key.text.isEmpty())
        return fail(key.position, QStringLiteral("the name of an extension is empty"));
    OrvProfileEntry entry{key.text, true, {}};
    if (m_token.kind == Kind::ArrayBegin) {
        if (!readControlled(entry))
            return false;
    } else if (m_token.kind == Kind::False) {
        entry.runs = false;
    } else if (m_token.kind != Kind::True) {
        return failExpecting("true, false or a list of names");
    }
    m_entries->append(entry);
    return true;
}

bool ProfileReader::readControlled(OrvProfileEntry& entry)
{
    QSet<QString> names;
    advance();
    if (m_token.kind == Kind::ArrayEnd)
        return true;
    for (;; advance()) {
        if (m_token.kind != Kind::String)
            return failExpecting("the name of an extension");
        if (m_token.text.isEmpty())
            return fail(m_token.position, QStringLiteral("the name of an extension is empty"));
        if (names.contains(m_token.text))
            return fail(m_token.position, QStringLiteral("%1 is in the list twice").arg(quoted(m_token.text)));
        if (m_token.text == entry.extension && m_token.text != u"*")
            return fail(m_token.position, QStringLiteral("%1 can't control itself").arg(quoted(m_token.text)));
        names.insert(m_token.text);
        entry.controlled.append(m_token.text);
        advance();
        if (m_token.kind == Kind::ArrayEnd)
            return true;
        if (m_token.kind != Kind::Comma)
            return failExpecting("\",\" or \"]\"");
    }
}

template <typename ReadMember>
bool ProfileReader::readObject(const ReadMember& readMember)
{
    QSet<QString> keys;
    advance();
    if (m_token.kind == Kind::ObjectEnd)
        return true;
    for (;; advance()) {
        if (m_token.kind != Kind::String)
            return failExpecting("a key");
        const JsonToken key = m_token;
        if (keys.contains(key.text))
            return fail(key.position, QStringLiteral("%1 occurs here for the second time").arg(quoted(key.text)));
        keys.insert(key.text);
        if (!expect(Kind::Colon, "\":\""))
            return false;
        advance();
        if (!readMember(key))
            return false;
        advance();
        if (m_token.kind == Kind::ObjectEnd)
            return true;
        if (m_token.kind != Kind::Comma)
            return failExpecting("\",\" or \"}\"");
    }
}

bool ProfileReader::expect(Kind kind, const char* what)
{
    advance();
    return m_token.kind == kind || failExpecting(what);
}

bool ProfileReader::fail(meridane::TextPosition position, const QString& what)
{
    m_error = QStringLiteral("%1:%2:%3: %4").arg(m_fileName).arg(position.line).arg(position.column).arg(what);
    return false;
}

bool ProfileReader::failExpecting(const char* what)
{
    if (m_token.kind == Kind::Bad)
        return fail(m_token.position, m_token.text);
    if (m_token.kind == Kind::Unknown)
        return fail(m_token.position, QStringLiteral("unexpected %1").arg(quoted(m_token.text)));
    return fail(
        m_token.position, QStringLiteral("expected %1, and found %2").arg(QString::fromUtf8(what), describe(m_token)));
}

} // namespace orvane
