#pragma once

#include "meridane/query/QueryError.h"
#include "meridane/query/detail/QueryCursor.h"
#include "meridane/query/detail/QueryTree.h"

#include <optional>
#include <string>
#include <string_view>

namespace meridane {

/// Reads a query as people write it.
class QueryScanner : private QueryCursor {
public:
    using QueryCursor::Mode;

    QueryScanner(std::string_view text, QuerySubject subject, Mode mode);

    /// The query; nothing if there is none, because it has no words or because of an error.
    [[nodiscard]] std::optional<QueryTree> run();
    [[nodiscard]] const std::optional<QueryError>& error() const noexcept { return m_error; }
    /// What a draft lacks to be complete. What isn't complete isn't part of the query.
    [[nodiscard]] const std::optional<QueryError>& missing() const noexcept { return m_missing; }

private:
    /// Nothing after an error, and if there is nothing complete in a draft.
    using Tree = std::optional<QueryTree>;

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
    std::optional<TextPattern> readOpenExpression();
    std::optional<TextPattern> compile(std::size_t start, std::string_view expression);
    Tree readNumber(ValueTest::Comparison comparison, std::size_t start, std::string_view value);
    std::optional<std::string> readQuoted();
    /// Something isn't there: an error, unless the text is a draft.
    std::nullopt_t lack(std::size_t position, std::string message);
    std::nullopt_t fail(std::size_t position, std::string message);

    std::size_t m_brackets = 0; ///< that are open
    int m_expressions = 0; ///< regular expressions so far
    std::optional<QueryError> m_error;
    std::optional<QueryError> m_missing;
};

} // namespace meridane
