#include "meridane/scene/text/detail/TokenDescription.h"

#include "meridane/base/values/MessageText.h"
#include "meridane/scene/text/TextReader.h"

#include <algorithm>

namespace meridane {

namespace {

constexpr std::size_t maxShown = 32; // bytes

bool endsWord(char character)
{
    return TextReader::isDelimiter(character) || character == '=' || character == ';';
}

/// The complete token at the start of the text.
std::string_view tokenAt(std::string_view text)
{
    if (text.front() == '"') {
        const std::size_t end = text.find_first_of("\"\n", 1);
        return text.substr(0, end == std::string_view::npos ? end : end + (text[end] == '"' ? 1U : 0U));
    }
    const auto* const end = std::find_if(text.begin(), text.end(), endsWord);
    return text.substr(0, std::max<std::size_t>(1, static_cast<std::size_t>(end - text.begin())));
}

} // namespace

std::string describeToken(std::string_view text, std::size_t offset)
{
    if (offset >= text.size())
        return "the end of the file";
    text = text.substr(offset);
    if (text.front() == '\n' || text.starts_with("\r\n"))
        return "the end of the line";
    const std::string_view token = tokenAt(text.substr(0, 2 * maxShown));
    const std::string shown = excerpt(token, maxShown);
    if (token.front() != '"' || token.size() == 1)
        return '"' + shown + '"';
    return token.size() > maxShown ? shown + '"' : shown;
}

} // namespace meridane
