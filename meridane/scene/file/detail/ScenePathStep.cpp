#include "meridane/scene/file/detail/ScenePathStep.h"

#include "meridane/scene/text/TextReader.h"
#include "meridane/scene/text/ValueText.h"

#include <algorithm>
#include <charconv>

namespace meridane {

namespace {

bool isPlain(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') || byte >= 0x80
        || std::string_view("_-+: ").find(character) != std::string_view::npos;
}

std::size_t plainLength(std::string_view text)
{
    return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), isPlain) - text.begin());
}

// A group may have a million nodes: the search ends at the second one with the name.
bool isUnique(std::string_view name, std::span<NxNode* const> siblings)
{
    const auto hasName = [name](const NxNode* sibling) { return sibling->getName().view() == name; };
    const auto first = std::find_if(siblings.begin(), siblings.end(), hasName);
    return first == siblings.end() || std::find_if(first + 1, siblings.end(), hasName) == siblings.end();
}

} // namespace

ScenePathStep ScenePathStep::of(const NxNode& parent, const NxNode& child)
{
    const std::string_view name = child.getName().view();
    const auto siblings = parent.getChildren();
    if (!name.empty() && isUnique(name, siblings))
        return {std::string(name), -1};
    // Only unknown classes have another name than that of their type.
    const NxType type = child.getTypeId();
    const char* const className = child.getClassName();
    const auto place = std::find(siblings.begin(), siblings.end(), &child);
    const auto before = std::count_if(siblings.begin(), place, [type, className](const NxNode* sibling) {
        if (sibling->getTypeId() != type)
            return false;
        const char* const other = sibling->getClassName();
        return other == className || std::string_view(other) == className;
    });
    return {className, static_cast<int>(before)};
}

std::string ScenePathStep::parse(std::string_view path, std::size_t& at)
{
    const std::string_view rest = path.substr(at);
    index = -1;
    if (rest.starts_with('"')) {
        TextReader reader(rest);
        std::string_view text;
        if (!reader.readQuoted(text))
            return "expected " + reader.expected();
        name = text;
        at += reader.position();
        return name.empty() ? "expected the name of a node between the quotes" : "";
    }
    const std::size_t length = plainLength(rest);
    name = rest.substr(0, length);
    at += length;
    if (length == 0)
        return "expected the name of a node behind it";
    if (!rest.substr(length).starts_with('['))
        return {};
    const char* const digits = rest.data() + length + 1;
    const char* const end = rest.data() + rest.size();
    const auto [behind, error] = std::from_chars(digits, end, index);
    if (error != std::errc() || index < 0 || behind == end || *behind != ']')
        return "expected an index and \"]\" behind \"[\"";
    at += static_cast<std::size_t>(behind - digits) + 2;
    return {};
}

void ScenePathStep::appendTo(std::string& text) const
{
    if (index >= 0)
        text += name + '[' + std::to_string(index) + ']';
    else if (plainLength(name) == name.size())
        text += name;
    else
        writeValue(text, VbString(std::string_view(name)));
}

} // namespace meridane
