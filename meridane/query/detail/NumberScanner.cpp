#include "meridane/query/detail/NumberScanner.h"

#include "meridane/base/values/MessageText.h"
#include "meridane/scene/text/TextReader.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <vector>

namespace meridane {
namespace {

constexpr std::size_t mostShown = 40; // bytes of a number in a message

bool isDigit(char character) noexcept
{
    return character >= '0' && character <= '9';
}

std::size_t endOfDigits(std::string_view text, std::size_t start)
{
    const auto* const end = std::find_if_not(text.begin() + static_cast<std::ptrdiff_t>(start), text.end(), isDigit);
    return static_cast<std::size_t>(end - text.begin());
}

bool hasDigitAt(std::string_view text, std::size_t offset)
{
    return offset < text.size() && isDigit(text[offset]);
}

/// The digits of a number, and the signs between them.
struct DigitGroups {
    std::vector<std::string_view> groups;
    std::string separators;
    std::size_t end = 0;

    [[nodiscard]] bool hasThreeDigits(std::size_t first, std::size_t last) const
    {
        return std::all_of(groups.begin() + static_cast<std::ptrdiff_t>(first),
            groups.begin() + static_cast<std::ptrdiff_t>(last), [](auto group) { return group.size() == 3; });
    }
    [[nodiscard]] bool hasSameSeparators(std::size_t count) const
    {
        return separators.find_first_not_of(separators[0]) >= count;
    }
    /// The groups before the one of that index as one number, and the others as its fraction.
    [[nodiscard]] std::string joined(std::size_t fraction) const
    {
        std::string digits;
        for (std::size_t i = 0; i < groups.size(); ++i)
            digits.append(i == fraction ? "." : "").append(groups[i]);
        return digits;
    }
};

DigitGroups digitGroups(std::string_view text, std::size_t start)
{
    DigitGroups result;
    std::size_t begin = start;
    while (true) {
        const std::size_t end = endOfDigits(text, begin);
        result.groups.push_back(text.substr(begin, end - begin));
        result.end = end;
        if (end >= text.size())
            return result;
        const char separator = text[end];
        if ((separator == '.' || separator == ',' || separator == '\'') && hasDigitAt(text, end + 1)) {
            result.separators += separator;
            begin = end + 1;
            continue;
        }
        // Three digits after a blank are thousands.
        const bool mayFollow = separator == ' ' && result.groups.back().size() <= 3
            && result.separators.find_first_not_of(' ') == std::string::npos;
        if (!mayFollow || endOfDigits(text, end + 1) != end + 4)
            return result;
        result.separators += ' ';
        begin = end + 1;
    }
}

/// The number that was meant by signs between thousands, as one would write it; empty if there is no such number.
std::string withoutThousands(const DigitGroups& number)
{
    const std::size_t count = number.separators.size();
    const char last = number.separators.back();
    if (number.groups.front().empty() || number.groups.front().size() > 3)
        return {};
    if (number.hasSameSeparators(count))
        return number.hasThreeDigits(1, count + 1) ? number.joined(count + 1) : std::string();
    const bool hasFraction = last == '.' || last == ',';
    return hasFraction && number.hasSameSeparators(count - 1) && number.separators[0] != last
            && number.hasThreeDigits(1, count)
        ? number.joined(count)
        : std::string();
}

std::string quoted(std::string_view text)
{
    return excerpt(text, mostShown);
}

ScannedNumber scanHexadecimal(std::string_view text, std::size_t start)
{
    ScannedNumber result;
    std::uint64_t value = 0;
    const auto [end, error] = std::from_chars(text.data() + start + 2, text.data() + text.size(), value, 16);
    result.end = static_cast<std::size_t>(end - text.data());
    result.value = static_cast<double>(value);
    if (result.end == start + 2)
        result.refusal = "Digits from 0 to 9 and from a to f are missing after 0x.";
    else if (error != std::errc() || value > (std::uint64_t{1} << 53U))
        result.refusal = "The number " + quoted(text.substr(start, result.end - start)) + " is too large.";
    return result;
}

std::size_t endOfExponent(std::string_view text, std::size_t start)
{
    if (start >= text.size() || (text[start] != 'e' && text[start] != 'E'))
        return start;
    const bool hasSign = start + 1 < text.size() && (text[start + 1] == '+' || text[start + 1] == '-');
    const std::size_t digits = start + (hasSign ? 2 : 1);
    return hasDigitAt(text, digits) ? endOfDigits(text, digits) : start;
}

} // namespace

bool beginsNumber(std::string_view text, std::size_t start)
{
    return hasDigitAt(text, start)
        || (start < text.size() && (text[start] == '.' || text[start] == ',') && hasDigitAt(text, start + 1));
}

ScannedNumber scanNumber(std::string_view text, std::size_t start)
{
    if (text.substr(start, 2) == "0x" || text.substr(start, 2) == "0X")
        return scanHexadecimal(text, start);
    const DigitGroups number = digitGroups(text, start);
    ScannedNumber result;
    result.end = number.end;
    const auto shown = [&] { return quoted(text.substr(start, result.end - start)); };
    const std::string& separators = number.separators;
    result.hasComma = separators == ",";
    if (!separators.empty() && separators != "," && separators != ".") {
        const std::string meant = withoutThousands(number);
        result.refusal = meant.empty()
            ? shown() + " isn't a number: it may have one decimal sign and no other signs."
            : "Signs between thousands can't be read: write " + meant + " for " + shown() + ".";
        return result;
    }
    if (separators.empty() && result.end < text.size() && text[result.end] == '.')
        ++result.end; // "5."
    const std::size_t exponentEnd = endOfExponent(text, result.end);
    std::string digits = number.joined(separators.empty() ? number.groups.size() : 1);
    digits.append(text.substr(result.end, exponentEnd - result.end));
    result.end = exponentEnd;
    TextReader reader(digits);
    if (!reader.readNumber(result.value))
        result.refusal = "The number " + shown() + " is too large.";
    return result;
}

} // namespace meridane
