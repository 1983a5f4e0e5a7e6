#pragma once

#include "meridane/base/values/VbString.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

#include <assimp/material.h>
#include <assimp/types.h>

/// Texts between a scene and the import library: UTF-8 in both, but the library's hold at most 1023 bytes.
namespace orvane {

[[nodiscard]] inline std::string_view viewOf(const aiString& text)
{
    return {text.data, text.length};
}

[[nodiscard]] inline VbString toText(const aiString& text)
{
    return VbString(viewOf(text));
}

[[nodiscard]] inline aiString toAiText(std::string_view text)
{
    std::size_t length = std::min<std::size_t>(text.size(), MAXLEN - 1);
    // Not in the middle of a character.
    while (length < text.size() && length > 0 && (static_cast<unsigned char>(text[length]) & 0xc0) == 0x80)
        --length;
    aiString result;
    result.length = static_cast<ai_uint32>(length);
    std::copy_n(text.begin(), length, std::begin(result.data));
    result.data[length] = '\0';
    return result;
}

[[nodiscard]] inline aiString toAiText(const VbString& text)
{
    return toAiText(text.view());
}

/// Empty for a material without one.
[[nodiscard]] inline std::string materialName(const aiMaterial& material)
{
    aiString name;
    material.Get(AI_MATKEY_NAME, name);
    return std::string(viewOf(name));
}

} // namespace orvane
