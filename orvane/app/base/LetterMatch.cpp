#include "orvane/app/base/LetterMatch.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <vector>

namespace orvane {
namespace {

constexpr int letterScore = 1;
constexpr int nextScore = 6; // for a letter directly behind the one before
constexpr int wordScore = 8; // for the first letter of a word
constexpr int nameScore = 6; // for the first letter of the name, in addition
constexpr int impossible = -1'000'000;

char16_t withoutAccent(char16_t character)
{
    if (character < 0x80)
        return character;
    const QString parts = QChar(character).decomposition();
    return parts.isEmpty() ? character : parts.front().unicode();
}

char16_t folded(QChar character)
{
    const char16_t code = character.unicode();
    if (code < 0x80)
        return code >= u'A' && code <= u'Z' ? static_cast<char16_t>(code + (u'a' - u'A')) : code;
    return withoutAccent(QChar(withoutAccent(code)).toCaseFolded().unicode());
}

bool beginsWord(const QString& name, qsizetype place)
{
    if (place == 0)
        return true;
    const QChar before = name.at(place - 1);
    const QChar here = name.at(place);
    return (!before.isLetterOrNumber() && here.isLetterOrNumber()) || (here.isUpper() && !before.isUpper())
        || (here.isDigit() && !before.isDigit());
}

/// In which capital and small letters of ASCII differ, and few other characters.
constexpr unsigned char caseBit = 0x20;

} // namespace

/// For each letter and each character of the name: the best score of the letters up to this one, if it is found there.
struct LetterMatch::Table {
    qsizetype width = 0;
    std::vector<int> scores;
    std::vector<int> previous; ///< where the letter before is found then

    [[nodiscard]] std::size_t at(qsizetype letter, qsizetype place) const
    {
        return static_cast<std::size_t>(letter * width + place);
    }
};

LetterMatch::LetterMatch(const QString& letters)
{
    for (const QChar letter : letters) {
        if (!letter.isSpace() && letter.category() != QChar::Mark_NonSpacing)
            m_letters.append(QChar(folded(letter)));
    }
    m_isTooLong = m_letters.size() > mostLetters;
    m_letters.truncate(mostLetters);
    for (const QChar letter : m_letters) {
        // No byte of ASCII is that of other letters.
        m_bytes += letter.unicode() < 0x80 ? static_cast<char>(letter.unicode() | caseBit) : '\xFF';
    }
}

bool LetterMatch::mayMatch(std::string_view name) const noexcept
{
    constexpr std::uint64_t ones = 0x0101010101010101;
    constexpr std::uint64_t lowBits = 0x7F * ones;
    std::size_t letter = 0;
    std::size_t at = 0;
    if constexpr (std::endian::native == std::endian::little) {
        for (std::uint64_t bytes = 0; at + sizeof bytes <= name.size() && letter < m_bytes.size(); at += sizeof bytes) {
            std::memcpy(&bytes, name.data() + at, sizeof bytes);
            if ((bytes & ~lowBits) != 0)
                return true;
            bytes |= ones * caseBit;
            for (std::uint64_t left = ~std::uint64_t{0}; letter < m_bytes.size(); ++letter) {
                const std::uint64_t difference = bytes ^ (ones * static_cast<unsigned char>(m_bytes[letter]));
                // The highest bit of each byte that is the letter.
                const std::uint64_t same = ~(((difference & lowBits) + lowBits) | difference | lowBits) & left;
                if (same == 0)
                    break;
                left = ~(((same & (~same + 1)) << 1U) - 1);
            }
        }
    }
    for (; at < name.size() && letter < m_bytes.size(); ++at) {
        const auto byte = static_cast<unsigned char>(name[at]);
        if (byte >= 0x80)
            return true;
        if ((byte | caseBit) == static_cast<unsigned char>(m_bytes[letter]))
            ++letter;
    }
    return letter == m_bytes.size();
}

std::optional<int> LetterMatch::fill(const QString& name, Table& table) const
{
    const qsizetype width = std::min(name.size(), mostCharacters);
    if (m_isTooLong || width < m_letters.size())
        return std::nullopt;
    table.width = width;
    const auto cells = static_cast<std::size_t>(width * m_letters.size());
    table.scores.assign(cells, impossible);
    table.previous.assign(cells, -1);
    QString characters(width, Qt::Uninitialized);
    std::transform(
        name.begin(), name.begin() + width, characters.begin(), [](QChar one) { return QChar(folded(one)); });
    for (qsizetype letter = 0; letter < m_letters.size(); ++letter) {
        int best = letter == 0 ? 0 : impossible; // of the letter before, in front of the place
        int bestPlace = -1;
        for (qsizetype place = 0; place < width; ++place) {
            if (letter > 0 && place > 0 && table.scores[table.at(letter - 1, place - 1)] > best) {
                best = table.scores[table.at(letter - 1, place - 1)];
                bestPlace = static_cast<int>(place) - 1;
            }
            if (best == impossible || characters.at(place) != m_letters.at(letter))
                continue;
            const int bonus = letterScore + (beginsWord(name, place) ? wordScore : 0) + (place == 0 ? nameScore : 0);
            int score = best + bonus;
            int previous = bestPlace;
            const int beside = letter > 0 && place > 0 ? table.scores[table.at(letter - 1, place - 1)] : impossible;
            if (beside != impossible && beside + nextScore > best) {
                score = beside + nextScore + bonus;
                previous = static_cast<int>(place) - 1;
            }
            table.scores[table.at(letter, place)] = score;
            table.previous[table.at(letter, place)] = previous;
        }
    }
    const auto last = table.scores.end() - width;
    const int best = *std::max_element(last, table.scores.end());
    return best == impossible ? std::nullopt : std::optional(best);
}

std::optional<int> LetterMatch::score(const QString& name) const
{
    if (m_letters.isEmpty())
        return 0;
    Table table;
    const std::optional<int> best = fill(name, table);
    if (!best)
        return best;
    // Of names that match equally well the one with less besides.
    constexpr int scale = 8;
    return *best * scale - static_cast<int>(std::min(name.size() - m_letters.size(), mostCharacters));
}

QList<int> LetterMatch::places(const QString& name) const
{
    Table table;
    if (m_letters.isEmpty() || !fill(name, table))
        return {};
    const auto last = table.scores.end() - table.width;
    auto place = static_cast<int>(std::max_element(last, table.scores.end()) - last);
    QList<int> found;
    for (qsizetype letter = m_letters.size() - 1; letter >= 0 && place >= 0; --letter) {
        found.prepend(place);
        place = table.previous[table.at(letter, place)];
    }
    return found;
}

} // namespace orvane
