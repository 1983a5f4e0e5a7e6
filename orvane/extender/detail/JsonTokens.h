#pragma once

#include <QString>

namespace orvane {

/// Where something stands in a text; both count from 1, the column in characters.
struct TextPosition {
    int line = 1;
    int column = 1;
};

/// One token of a JSON text.
struct JsonToken {
    enum class Kind {
        ObjectBegin,
        ObjectEnd,
        ArrayBegin,
        ArrayEnd,
        Colon,
        Comma,
        String,
        True,
        False,
        Null,
        Number,
        End,
        /// What is no JSON; `text` holds it.
        Unknown,
        /// A text that is wrong inside; `text` tells what is wrong.
        Bad,
    };

    Kind kind = Kind::End;
    TextPosition position;
    /// The content of a string; empty where nothing else is told.
    QString text;
};

/// Splits a JSON text into its tokens and tells where each of them stands, which QJsonDocument doesn't.
class JsonTokens {
public:
    explicit JsonTokens(const QString& text);

    /// The next token. Behind the last one it is `End` each time.
    [[nodiscard]] JsonToken next();

private:
    void skipBlanks();
    [[nodiscard]] bool isAtEnd() const { return m_at == m_text.size(); }
    QChar take();
    [[nodiscard]] JsonToken string();
    [[nodiscard]] JsonToken word();

    QString m_text;
    qsizetype m_at = 0;
    TextPosition m_position;
    /// Where the token begins that is being read.
    TextPosition m_start;
};

} // namespace orvane
