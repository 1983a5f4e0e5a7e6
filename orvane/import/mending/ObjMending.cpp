#include "orvane/import/mending/ObjMending.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <optional>

namespace orvane {
namespace {

constexpr std::string_view blanks = " \t\r\n\\";

/// The number of positions, texture coordinates and normals, in the order in which a corner of a face refers to them.
using Counts = std::array<long, 3>;

std::string_view takeWord(std::string_view& line)
{
    const std::size_t start = std::min(line.find_first_not_of(blanks), line.size());
    const std::size_t end = std::min(line.find_first_of(blanks, start), line.size());
    const std::string_view word = line.substr(start, end - start);
    line.remove_prefix(end);
    return word;
}

/// Removes a statement and returns it. A line that ends in a backslash goes on in the next one.
std::string_view takeStatement(std::string_view& text)
{
    std::size_t end = 0;
    bool goesOn = true;
    while (goesOn) {
        const std::size_t start = end;
        end = std::min(text.find('\n', start), text.size() - 1) + 1;
        const std::string_view line = text.substr(start, end - start);
        const std::size_t last = line.find_last_not_of("\r\n");
        goesOn = end < text.size() && last != std::string_view::npos && line[last] == '\\';
    }
    const std::string_view statement = text.substr(0, end);
    text.remove_prefix(end);
    return statement;
}

std::optional<std::size_t> listOfKeyword(std::string_view keyword)
{
    if (keyword == "v")
        return 0;
    if (keyword == "vt")
        return 1;
    return keyword == "vn" ? std::optional<std::size_t>(2) : std::nullopt;
}

/// A positive index counts from the first value of the file, a negative one from the last value so far.
bool isUsable(std::string_view index, long soFar, long all)
{
    if (index.empty())
        return true;
    long number = 0;
    const auto [behind, error] = std::from_chars(index.data(), index.data() + index.size(), number);
    return error == std::errc() && number != 0 && number <= all && number >= -soFar;
}

bool isUsableCorner(std::string_view corner, const Counts& soFar, const Counts& all)
{
    for (std::size_t list = 0; list < all.size(); ++list) {
        const std::size_t slash = std::min(corner.find('/'), corner.size());
        if (!isUsable(corner.substr(0, slash), soFar[list], all[list]))
            return false;
        corner.remove_prefix(std::min(slash + 1, corner.size()));
    }
    return true;
}

bool areUsableCorners(std::string_view corners, const Counts& soFar, const Counts& all)
{
    for (std::string_view corner = takeWord(corners); !corner.empty(); corner = takeWord(corners)) {
        if (!isUsableCorner(corner, soFar, all))
            return false;
    }
    return true;
}

Counts countsOf(std::string_view text)
{
    Counts counts{};
    while (!text.empty()) {
        std::string_view statement = takeStatement(text);
        if (const auto list = listOfKeyword(takeWord(statement)))
            ++counts[*list];
    }
    return counts;
}

} // namespace

std::string withoutUnusableFaces(std::string_view text, ImportWarnings& warnings)
{
    const Counts all = countsOf(text);
    Counts soFar{};
    std::string result;
    result.reserve(text.size());
    std::string_view object;
    while (!text.empty()) {
        const std::string_view statement = takeStatement(text);
        std::string_view rest = statement;
        const std::string_view keyword = takeWord(rest);
        if (const auto list = listOfKeyword(keyword))
            ++soFar[*list];
        else if (keyword == "o" || keyword == "g")
            object = takeWord(rest);
        const bool isFace = keyword == "f" || keyword == "l" || keyword == "p";
        if (isFace && !areUsableCorners(rest, soFar, all))
            warnings.add("left out faces with an index out of range in the meshes", object);
        else
            result += statement;
    }
    return result;
}

} // namespace orvane
