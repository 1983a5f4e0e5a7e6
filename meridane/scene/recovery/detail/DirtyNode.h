#pragma once

#include "meridane/scene/recovery/detail/DirtyRows.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace meridane {

/// What of a field is to be captured.
struct DirtyField {
    int index = 0; ///< in its class
    bool ignored = false; ///< the flag
    bool value = false; ///< the whole value, of a field that is no list
    std::size_t position = 0; ///< up to which the value is captured
    std::unique_ptr<DirtyRows> rows; ///< of a list; null if none
};

/// What of a node is to be captured.
struct DirtyNode {
    bool name = false;
    std::vector<DirtyField> fields; ///< in the order of their capture
    bool hasUnknownFields = false; ///< from the next one on
    std::size_t nextUnknownField = 0;
    std::size_t unknownPosition = 0; ///< up to which the text of that one is captured
    std::unique_ptr<DirtyRows> children; ///< null if none

    [[nodiscard]] bool isEmpty() const noexcept
    {
        return !name && fields.empty() && !hasUnknownFields && children == nullptr;
    }
    /// The entry of a field; made if there is none.
    [[nodiscard]] DirtyField& field(int index);
};

} // namespace meridane
