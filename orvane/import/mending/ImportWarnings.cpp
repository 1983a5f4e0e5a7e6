#include "orvane/import/mending/ImportWarnings.h"

#include <algorithm>

namespace orvane {

ImportWarnings::Kind& ImportWarnings::kindOf(std::string_view text)
{
    const auto found
        = std::find_if(m_kinds.begin(), m_kinds.end(), [&](const Kind& kind) { return kind.text == text; });
    return found != m_kinds.end() ? *found : m_kinds.emplace_back(Kind{std::string(text), {}, 0, 0});
}

void ImportWarnings::add(std::string_view text, std::string_view part)
{
    Kind& kind = kindOf(text);
    if (part.empty())
        ++kind.unnamed;
    else if (std::find(kind.names.begin(), kind.names.end(), part) != kind.names.end())
        return;
    else if (kind.names.size() < mostNames)
        kind.names.emplace_back(part);
    else
        ++kind.more;
}

void ImportWarnings::add(std::string_view text)
{
    kindOf(text);
}

std::vector<std::string> ImportWarnings::texts() const
{
    std::vector<std::string> result;
    for (const Kind& kind : m_kinds) {
        std::string text = kind.text;
        const char* before = ": ";
        const auto list = [&](const std::string& part) {
            text.append(before).append(part);
            before = ", ";
        };
        for (const std::string& name : kind.names)
            list('"' + name + '"');
        if (kind.unnamed > 0)
            list(std::to_string(kind.unnamed) + " without a name");
        if (kind.more > 0)
            list(std::to_string(kind.more) + " more");
        result.push_back(std::move(text));
    }
    return result;
}

} // namespace orvane
