#include "Tokens.h"

#include "meridane/base/values/Unicode.h"

#include <array>

namespace bench {

namespace {

enum class Kind : unsigned char { Other, Blank, Letter, Digit, Quote, Mark, Comment };

constexpr std::array<Kind, 256> makeKinds()
{
    std::array<Kind, 256> kinds{};
    const auto set = [&kinds](std::string_view characters, Kind kind) {
        for (const char character : characters)
            kinds[static_cast<unsigned char>(character)] = kind;
    };
    set(" \t\r\n", Kind::Blank);
    set("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ_", Kind::Letter);
    set("0123456789+-.", Kind::Digit);
    set("\"", Kind::Quote);
    set("{}[]=,;|", Kind::Mark);
    set("#", Kind::Comment);
    return kinds;
}

constexpr std::array<Kind, 256> kinds = makeKinds();

Kind kindOf(char character)
{
    return kinds[static_cast<unsigned char>(character)];
}

std::size_t endOfWord(std::string_view text, std::size_t at)
{
    while (at < text.size() && (kindOf(text[at]) == Kind::Letter || kindOf(text[at]) == Kind::Digit))
        ++at;
    return at;
}

std::size_t endOfText(std::string_view text, std::size_t at)
{
    for (++at; at < text.size() && text[at] != '"'; ++at) {
        if (text[at] == '\\')
            ++at;
    }
    return at + 1;
}

} // namespace

Tokens tokenise(std::string_view text)
{
    Tokens tokens;
    tokens.valid = meridane::findInvalidUtf8(text) == std::string_view::npos;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t start = at;
        switch (kindOf(text[at])) {
        case Kind::Blank:
            ++at;
            continue;
        case Kind::Comment:
            at = text.find('\n', at);
            if (at == std::string_view::npos)
                return tokens;
            continue;
        case Kind::Letter:
            at = endOfWord(text, at);
            ++tokens.words;
            break;
        case Kind::Digit:
            at = endOfWord(text, at);
            ++tokens.numbers;
            break;
        case Kind::Quote:
            at = endOfText(text, at);
            ++tokens.texts;
            break;
        case Kind::Mark:
            ++at;
            ++tokens.marks;
            break;
        case Kind::Other:
            ++at;
            tokens.valid = false;
            break;
        }
        tokens.bytes += at - start;
    }
    return tokens;
}

} // namespace bench
