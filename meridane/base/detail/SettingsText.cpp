#include "meridane/base/detail/SettingsText.h"

#include "meridane/base/values/TextPosition.h"
#include "meridane/base/values/Unicode.h"

#include <algorithm>
#include <utility>

namespace meridane {

namespace {

constexpr std::string_view blanks = " \t\r";

bool isNameCharacter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' || c == '.'
        || c == '-';
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(blanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

void parseLine(std::string_view line, int number, SettingsText& result)
{
    const auto report = [&](std::size_t byte, std::string expected) {
        result.problems.push_back({number, positionOf(line, byte).column, std::move(expected)});
    };
    if (const std::size_t invalid = findInvalidUtf8(line); invalid != std::string_view::npos) {
        report(invalid, "expected valid UTF-8");
        return;
    }
    const std::size_t begin = line.find_first_not_of(blanks);
    if (begin == std::string_view::npos || line[begin] == '#')
        return;
    std::size_t end = begin;
    while (end < line.size() && isNameCharacter(line[end]))
        ++end;
    if (end == begin) {
        report(begin, "expected a name of letters, digits and \"_.-\"");
        return;
    }
    const std::size_t equals = std::min(line.find_first_not_of(blanks, end), line.size());
    if (equals == line.size() || line[equals] != '=') {
        report(equals, "expected \"=\" after the name");
        return;
    }
    result.settings[std::string(line.substr(begin, end - begin))] = trimmed(line.substr(equals + 1));
}

} // namespace

SettingsText parseSettings(std::string_view text)
{
    text = withoutByteOrderMark(text);
    SettingsText result;
    for (int number = 1; !text.empty(); ++number) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        parseLine(text.substr(0, end), number, result);
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return result;
}

} // namespace meridane
