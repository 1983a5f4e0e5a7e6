#pragma once

#include "meridane/query/QuerySubject.h"
#include "meridane/query/detail/ValueTest.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

namespace meridane {

/// A place in the text of a query, and what begins there.
class QueryCursor {
public:
    enum class Mode : std::uint8_t {
        Whole, ///< a text that is complete
        Draft, ///< a text that is being typed: what its end lacks is no error
    };
    /// A sign of a comparison.
    using Sign = std::pair<std::string_view, ValueTest::Comparison>;

protected:
    QueryCursor(std::string_view text, QuerySubject subject, Mode mode)
        : m_text(text)
        , m_isScene(subject == QuerySubject::Scene)
        , m_isDraft(mode == Mode::Draft)
    {
    }

    [[nodiscard]] std::string_view rest() const { return m_text.substr(m_position); }
    [[nodiscard]] char next() const { return m_position < m_text.size() ? m_text[m_position] : '\0'; }
    [[nodiscard]] bool isAtEnd() const { return m_position == m_text.size(); }
    void skipBlanks();
    /// The characters up to one that ends a word.
    [[nodiscard]] std::string_view wordHere() const;
    [[nodiscard]] bool isWordHere(std::string_view word) const;
    /// The characters of a value up to a blank or a bracket that isn't its own.
    [[nodiscard]] std::string_view valueHere() const;
    /// The sign that begins here, or null.
    [[nodiscard]] const Sign* signHere() const;
    /// The length of the regular expression that begins here with its slashes; 0 if there is none.
    [[nodiscard]] std::size_t regularExpressionHere() const;
    /// Whether the rest of a draft is a regular expression that isn't closed yet.
    [[nodiscard]] bool isOpenExpressionHere() const;

    std::string_view m_text;
    bool m_isScene;
    bool m_isDraft;
    std::size_t m_position = 0;
};

} // namespace meridane
