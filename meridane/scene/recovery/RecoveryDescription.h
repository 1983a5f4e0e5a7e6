#pragma once

#include "meridane/base/ContentHash.h"

#include <chrono>
#include <cstdint>
#include <string>

namespace meridane {

/// What a recovery file belongs to.
struct RecoveryDescription {
    /// What the changes in the file begin from.
    enum class Base : std::uint8_t {
        File, ///< the scene file of that name, size and hash
        Nothing, ///< an empty scene: the changes build the whole scene
    };

    Base base = Base::Nothing; ///< what the changes begin from
    /// The scene as users know it, such as the name of its file or of the model that it was imported from.
    std::string displayName;
    /// The absolute name of the scene's file; empty for a scene without one. With the base `Nothing` it is only for
    /// information.
    std::string fileName;
    std::uint64_t fileSize = 0; ///< in bytes
    ContentHash fileHash; ///< of the whole content of the file
    /// The number of nodes of the base, the group that holds the top nodes included. The capture sets it.
    std::uint64_t nodeCount = 0;
    /// When the recovery file was begun.
    std::chrono::system_clock::time_point begun;

    /// Whether all members are equal.
    friend bool operator==(const RecoveryDescription&, const RecoveryDescription&) = default;
};

/// A state of the scene that can be recovered.
struct RecoveryCommit {
    std::chrono::system_clock::time_point time; ///< when the commit was made
    /// How many steps the user would lose, as the application counts them.
    std::uint64_t steps = 0;

    /// Whether time and steps are equal.
    friend bool operator==(const RecoveryCommit&, const RecoveryCommit&) = default;
};

} // namespace meridane
