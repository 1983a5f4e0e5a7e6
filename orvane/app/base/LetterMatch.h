#pragma once

#include <QList>
#include <QString>

#include <optional>
#include <string>
#include <string_view>

namespace orvane {

/// Letters that a user types to find a name in which they occur in this order, in any case and with or without accents.
/// Blanks don't count.
///
/// Of several ways to find the letters in a name the best one counts: letters at the beginning of the name or of a word
/// in it, and letters next to each other.
class LetterMatch {
public:
    static constexpr qsizetype mostLetters = 64;
    /// So many characters of a name are searched.
    static constexpr qsizetype mostCharacters = 400;

    /// More letters than the limit match nothing.
    explicit LetterMatch(const QString& letters = {});

    [[nodiscard]] bool isEmpty() const noexcept { return m_letters.isEmpty(); }
    /// Whether a name in UTF-8 may match. Most names that don't are excluded at little cost.
    [[nodiscard]] bool mayMatch(std::string_view name) const noexcept;
    /// How well the name matches, larger is better; nothing if it doesn't. 0 if there are no letters.
    [[nodiscard]] std::optional<int> score(const QString& name) const;
    /// The indices of the matched characters of the name, rising; none if it doesn't match.
    [[nodiscard]] QList<int> places(const QString& name) const;

private:
    struct Table;
    [[nodiscard]] std::optional<int> fill(const QString& name, Table& table) const;

    QString m_letters; ///< folded
    std::string m_bytes; ///< the letters for `mayMatch`
    bool m_isTooLong = false;
};

} // namespace orvane
