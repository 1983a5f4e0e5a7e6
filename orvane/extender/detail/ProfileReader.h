#pragma once

#include "orvane/extender/OrvProfileEntry.h"
#include "orvane/extender/detail/JsonTokens.h"

#include <QByteArray>
#include <QList>

#include <optional>

namespace orvane {

/// Reads a profile from JSON, or reports what is wrong and where. Everything outside of the format is refused: a
/// profile is written by hand, and a misspelt key would be hard to find if it were ignored.
class ProfileReader {
public:
    ProfileReader(const QByteArray& json, const QString& fileName);

    /// Returns false and sets `error` if the text is no profile; else name and entries are set. Called once.
    [[nodiscard]] bool read();
    [[nodiscard]] const QString& name() const { return *m_name; }
    [[nodiscard]] const QList<OrvProfileEntry>& entries() const { return *m_entries; }
    /// One line, "file:line:column: what is wrong".
    [[nodiscard]] const QString& error() const { return m_error; }

private:
    using Kind = JsonToken::Kind;

    [[nodiscard]] bool decode(const QByteArray& json);
    [[nodiscard]] bool readProfile();
    [[nodiscard]] bool readMember(const JsonToken& key);
    [[nodiscard]] bool readName();
    [[nodiscard]] bool readEntry(const JsonToken& key);
    [[nodiscard]] bool readControlled(OrvProfileEntry& entry);

    /// Reads the members of an object, whose opening brace is the current token. Calls `readMember` with each key while
    /// the current token is the first of the value; `readMember` leaves it at the last one of the value.
    template <typename ReadMember>
    [[nodiscard]] bool readObject(const ReadMember& readMember);
    void advance() { m_token = m_tokens.next(); }
    /// Advances to the next token, which must be of that kind.
    [[nodiscard]] bool expect(Kind kind, const char* what);
    [[nodiscard]] bool fail(meridane::TextPosition position, const QString& what);
    /// Fails with a message that names the current token and what was expected instead.
    [[nodiscard]] bool failExpecting(const char* what);

    QString m_fileName;
    QString m_error;
    JsonTokens m_tokens;
    JsonToken m_token;
    std::optional<QString> m_name;
    std::optional<QList<OrvProfileEntry>> m_entries;
};

} // namespace orvane
