#include "orvane/import/mending/Names.h"

#include "orvane/import/mending/Texts.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace orvane {
namespace {

bool isNumber(std::string_view text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
        return std::isdigit(static_cast<unsigned char>(c)) != 0;
    });
}

/// A name such as "nodes[81]", or "meshes[3]-1" for a part of a mesh.
bool isIndexed(std::string_view name)
{
    const std::size_t open = name.find('[');
    const std::size_t close = name.find(']');
    if (open == std::string_view::npos || close == std::string_view::npos || close < open)
        return false;
    constexpr std::array<std::string_view, 5> lists{"nodes", "meshes", "materials", "cameras", "lights"};
    const std::string_view rest = name.substr(close + 1);
    return std::find(lists.begin(), lists.end(), name.substr(0, open)) != lists.end()
        && isNumber(name.substr(open + 1, close - open - 1))
        && (rest.empty() || (rest.front() == '-' && isNumber(rest.substr(1))));
}

} // namespace

bool isMadeUpName(std::string_view name)
{
    constexpr std::array<std::string_view, 2> names{"defaultobject", "DefaultMaterial"};
    return name.empty() || std::find(names.begin(), names.end(), name) != names.end() || isIndexed(name)
        || (name.starts_with('<') && name.ends_with('>')) || name.starts_with("$ColladaAutoName$")
        || name.find("_$AssimpFbx$_") != std::string_view::npos;
}

VbString toName(const aiString& name)
{
    return isMadeUpName(viewOf(name)) ? VbString() : toText(name);
}

} // namespace orvane
