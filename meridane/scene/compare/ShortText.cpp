#include "meridane/scene/compare/ShortText.h"

#include "meridane/base/values/VbString.h"
#include "meridane/scene/fields/NxMField.h"

#include <algorithm>
#include <optional>

namespace meridane {

namespace {

constexpr std::string_view ellipsis = "…";
/// How much of what is equal is shown before the first difference.
constexpr std::size_t shownBefore = 16;

bool isContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// A part of a text that contains whole characters.
std::string part(std::string_view text, std::size_t begin, std::size_t length)
{
    while (begin > 0 && begin < text.size() && isContinuation(text[begin]))
        --begin;
    std::size_t end = text.size() - begin > length ? begin + length : text.size();
    while (end > begin && end < text.size() && isContinuation(text[end]))
        --end;
    std::string result(begin > 0 ? ellipsis : std::string_view());
    result += text.substr(begin, end - begin);
    return end < text.size() ? result.append(ellipsis) : result;
}

/// The text of a value, bit by bit.
class ValueStream {
public:
    explicit ValueStream(const NxField* field)
        : m_field(field)
        , m_more(field != nullptr)
    {
    }

    /// Appends to what wasn't removed, until that has so many bytes or the value ends.
    void fill(std::size_t bytes)
    {
        constexpr std::size_t valuesAtOnce = 1024;
        while (m_more && m_text.size() < bytes)
            m_more = m_field->writeText(m_text, m_position, valuesAtOnce);
    }
    [[nodiscard]] const std::string& text() const { return m_text; }
    [[nodiscard]] bool atEnd() const { return !m_more; }
    void remove(std::size_t bytes) { m_text.erase(0, bytes); }

private:
    const NxField* m_field;
    std::string m_text;
    std::size_t m_position = 0;
    bool m_more;
};

std::size_t equalBytes(std::string_view left, std::string_view right)
{
    const auto both = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
    return static_cast<std::size_t>(both.first - left.begin());
}

std::string shortStream(const NxField& field, const NxField* other, std::size_t length)
{
    constexpr std::size_t block = std::size_t{1} << 16U;
    ValueStream stream(&field);
    ValueStream otherStream(other);
    bool isCut = false;
    for (;;) {
        stream.fill(block);
        otherStream.fill(block);
        const std::size_t equal = equalBytes(stream.text(), otherStream.text());
        const bool isDifferent = equal < std::min(stream.text().size(), otherStream.text().size());
        const bool isEnd = (equal == stream.text().size() && stream.atEnd())
            || (equal == otherStream.text().size() && otherStream.atEnd());
        if (isDifferent || isEnd) {
            const std::size_t begin = equal > shownBefore ? equal - shownBefore : 0;
            stream.fill(begin + length + 1);
            std::string result = part(stream.text(), begin, length);
            return isCut && begin == 0 ? std::string(ellipsis) + result : result;
        }
        // Enough stays to be shown before the difference.
        const std::size_t passed = equal - std::min(equal, shownBefore);
        isCut = isCut || passed > 0;
        stream.remove(passed);
        otherStream.remove(passed);
    }
}

std::string shortList(const NxMField& list, const NxField* other, std::size_t length)
{
    const int count = list.getNum();
    const int first = other == nullptr ? 0 : list.firstDifferentRow(*other);
    std::string text = std::to_string(count) + " values";
    if (first >= count)
        return text;
    text += ", from " + std::to_string(first) + ": ";
    const std::size_t start = text.size();
    VbString value;
    for (int row = first; row < count; ++row) {
        if (row > first)
            text += ", ";
        if (text.size() - start >= length)
            return text.append(ellipsis);
        list.get1(row, value);
        text += part(value.view(), 0, length);
    }
    return text;
}

/// The whole text, if it isn't longer.
std::optional<std::string> wholeText(const NxField& field, std::size_t length)
{
    ValueStream stream(&field);
    stream.fill(length == std::string::npos ? length : length + 1);
    return stream.text().size() <= length ? std::optional(stream.text()) : std::nullopt;
}

} // namespace

std::string shortValue(const NxField& field, const NxField* other, std::size_t length)
{
    if (auto text = wholeText(field, length))
        return std::move(*text);
    if (const auto* const list = dynamic_cast<const NxMField*>(&field))
        return shortList(*list, other, length);
    return shortStream(field, other, length);
}

std::string shortText(std::string_view text, std::string_view other, std::size_t length)
{
    if (text.size() <= length)
        return std::string(text);
    const std::size_t equal = equalBytes(text, other);
    return part(text, equal > shownBefore ? equal - shownBefore : 0, length);
}

} // namespace meridane
