#pragma once

#include "meridane/query/QueryError.h"
#include "meridane/query/QuerySubject.h"
#include "meridane/query/detail/QueryTree.h"

#include <optional>
#include <string>
#include <string_view>

namespace meridane {

/// Reads a query as people write it.
class QueryScanner {
public:
    QueryScanner(std::string_view text, QuerySubject subject);

    /// The query; nothing if there is none, because it has no words or because of an error.
    [[nodiscard]] std::optional<QueryTree> run();
    [[nodiscard]] const std::optional<QueryError>& error() const noexcept { return m_error; }

private:
    using Tree = std::optional<QueryTree>; ///< nothing after an error

    Tree readAny();
    Tree readAll();
    Tree readOne();
    Tree readBracket();
    Tree readTerm();
    Tree readWord();
    Tree readValue();
    Tree readValueText();
    /// A word, a text in quotes or a regular expression after a sign; `what` is missing if there is none.
    std::optional<TextPattern> readPattern(const char* what);
    std::optional<TextPattern> readRegularExpression();
    std::optional<std::string> readQuoted();
    /// The characters of a value up to a blank or a bracket that isn't its own.
    [[nodiscard]] std::string_view valueHere() const;

    [[nodiscard]] std::string_view rest() const { return m_text.substr(m_position); }
    [[nodiscard]] char next() const { return m_position < m_text.size() ? m_text[m_position] : '\0'; }
    void skipBlanks();
    /// The characters up to one that ends a word.
    [[nodiscard]] std::string_view wordHere() const;
    [[nodiscard]] bool isWordHere(std::string_view word) const;
    /// The length of the regular expression that begins here with its slashes; 0 if there is none.
    [[nodiscard]] std::size_t regularExpressionHere() const;
    std::nullopt_t fail(std::size_t position, std::string message);

    std::string_view m_text;
    bool m_isScene;
    std::size_t m_position = 0;
    std::size_t m_brackets = 0; ///< that are open
    int m_expressions = 0; ///< regular expressions so far
    std::optional<QueryError> m_error;
};

} // namespace meridane
