#pragma once

#include "meridane/base/values/TextPosition.h"

#include <QString>

namespace orvane {

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
        /// A character that isn't part of JSON; `text` holds it.
        Unknown,
        /// A token with an error inside; `text` describes the error.
        Bad,
    };

    Kind kind = Kind::End;
    meridane::TextPosition position;
    /// The content of a string, or as the kind says; else empty.
    QString text;
};

/// Splits a JSON text into tokens with their positions. QJsonDocument reports neither the position of a key nor a key
/// that occurs twice.
class JsonTokens {
public:
    explicit JsonTokens(const QString& text);

    /// The next token. After the last one it is always `End`.
    [[nodiscard]] JsonToken next();

private:
    void skipBlanks();
    [[nodiscard]] bool isAtEnd() const { return m_at == m_text.size(); }
    QChar take();
    [[nodiscard]] JsonToken string();
    [[nodiscard]] JsonToken word();

    QString m_text;
    qsizetype m_at = 0;
    meridane::TextPosition m_position;
    /// The position of the current token's first character.
    meridane::TextPosition m_start;
};

} // namespace orvane
