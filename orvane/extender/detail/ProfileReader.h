#pragma once

#include "orvane/extender/OrvProfileEntry.h"
#include "orvane/extender/detail/JsonTokens.h"

#include <QByteArray>
#include <QList>

#include <optional>

namespace orvane {

/// Reads a profile from JSON, or tells what is wrong and where. Whatever the format doesn't know is refused: a profile
/// is written by hand, and a misspelt key that is passed over would be hard to find.
class ProfileReader {
public:
    ProfileReader(const QByteArray& json, const QString& fileName);

    /// False with `error` if the text is no profile, else name and entries are there. Called once.
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

    /// Reads the members of an object, whose opening brace is the present token, by `readMember`, which is given the
    /// key with the value as the present token and leaves the present token on the last one of the value.
    template <typename ReadMember>
    [[nodiscard]] bool readObject(const ReadMember& readMember);
    void advance() { m_token = m_tokens.next(); }
    /// Advances to the next token, which must be of that kind.
    [[nodiscard]] bool expect(Kind kind, const char* what);
    [[nodiscard]] bool fail(TextPosition position, const QString& what);
    /// The failure that the present token is something else than what was expected.
    [[nodiscard]] bool failExpecting(const char* what);

    QString m_fileName;
    QString m_error;
    JsonTokens m_tokens;
    JsonToken m_token;
    std::optional<QString> m_name;
    std::optional<QList<OrvProfileEntry>> m_entries;
};

} // namespace orvane
