#pragma once

#include "meridane/scene/nodes/NxNode.h"

#include <cstdint>
#include <functional>
#include <string>

/// \file
/// How a check of a scene learns of the files that the scene names.

/// What a caller of a check knows of a file that a scene names. The check itself opens no file.
struct NxFileFinding {
    /// What is known of the file.
    enum class State : std::uint8_t {
        Good, ///< it exists and can be read, as far as the caller can say
        Missing,
        Unreadable, ///< see `reason`
        Unknown, ///< the caller is still looking for it; see `NxSceneCheck::noteFilesFound`
    };

    State state = State::Good; ///< what the caller knows
    /// The end of a sentence that begins with the name of the file, such as "isn't a regular file".
    std::string reason;
    /// The size in pixels of an image that is good; 0 if the caller doesn't know it.
    int width = 0;
    int height = 0; ///< see `width`
};

/// Looks for the file of a path as the scene has it, which may be relative to the folder of the scene. `isImage` if the
/// file must be an image. Called often; it must not block.
using NxFileFinder = std::function<NxFileFinding(const std::string& path, bool isImage)>;
