#pragma once

#include "orvane/import/mending/Texts.h"

#include <string_view>

#include <assimp/commonMetaData.h>
#include <assimp/scene.h>

namespace orvane {

/// Whether the name that the import library gives to the format of the model begins so.
[[nodiscard]] inline bool hasSourceFormat(const aiScene& model, std::string_view start)
{
    aiString format;
    return model.mMetaData != nullptr && model.mMetaData->Get(AI_METADATA_SOURCE_FORMAT, format)
        && viewOf(format).starts_with(start);
}

} // namespace orvane
