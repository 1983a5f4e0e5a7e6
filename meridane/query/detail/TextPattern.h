#pragma once

#include "meridane/query/FoundParts.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace re2 {
class RE2;
}

namespace meridane {

/// What a text may be searched for, in any case of letters and with or without accents (see `foldText`).
class TextPattern {
public:
    /// A word: letters that occur in this order, or one after the other.
    [[nodiscard]] static TextPattern word(std::string_view word);
    /// A text that occurs as it is.
    [[nodiscard]] static TextPattern phrase(std::string_view text);
    /// A regular expression. If it is wrong, `refusal` is its message.
    [[nodiscard]] static TextPattern regularExpression(std::string_view expression);

    /// Why the pattern can't be used, in plain words.
    [[nodiscard]] const std::optional<std::string>& refusal() const noexcept { return m_refusal; }

    /// Whether it matches a name: the letters of a word need only be in order.
    [[nodiscard]] bool matchesName(std::string_view name) const;
    /// The same for a name that was folded before; `name` calls for the name as it is, if that is needed.
    template <typename Name>
    [[nodiscard]] bool matchesFoldedName(std::string_view folded, Name name) const
    {
        return m_expression != nullptr ? matchesText(name()) : matchesFolded(folded);
    }
    /// Whether it matches a longer text, in which the letters of a word must be next to each other.
    [[nodiscard]] bool matchesText(std::string_view text) const;
    /// Adds what `matchesName` finds: the letters of a word, together if they are so anywhere.
    void addFoundInName(std::string_view name, FoundParts& parts) const;
    /// Adds all that `matchesText` can find.
    void addFoundInText(std::string_view text, FoundParts& parts) const;
    /// Whether the text is the word or the phrase.
    [[nodiscard]] bool isEqualTo(std::string_view text) const;

private:
    TextPattern() = default;
    [[nodiscard]] std::string_view folded(std::string_view text) const;
    [[nodiscard]] bool matchesFolded(std::string_view name) const;

    std::string m_text; ///< folded
    bool m_isAscii = true;
    bool m_isWord = false;
    std::shared_ptr<const re2::RE2> m_expression;
    std::optional<std::string> m_refusal;
    mutable std::string m_folded; ///< the text that is searched
};

} // namespace meridane
