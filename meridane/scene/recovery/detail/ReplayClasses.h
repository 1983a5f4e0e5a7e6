#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"
#include "meridane/scene/nodes/detail/NodeClasses.h"
#include "meridane/scene/recovery/detail/ByteReader.h"

#include <cstdint>
#include <string>
#include <unordered_set>
#include <vector>

class NxFieldData;

namespace meridane {

/// The node classes that a recovery file describes, compared with those of this program.
class ReplayClasses {
public:
    /// Reads the description of the next class. Returns why it can't be used, or nothing.
    [[nodiscard]] std::string add(ByteReader& reader);
    [[nodiscard]] std::uint64_t count() const noexcept { return m_classes.size(); }
    /// Makes a node of a class, by its number.
    [[nodiscard]] NxRef<NxNode> create(std::uint64_t number) const;
    /// The field of that index of a node; null if there is none, or the node's class isn't described.
    [[nodiscard]] NxField* field(NxNode& node, std::uint64_t index) const;

private:
    struct Class {
        std::string name;
        const NodeClass* known = nullptr; // null for an unknown one
    };

    [[nodiscard]] static std::string compareFields(ByteReader& reader, const std::string& name, NxFieldData& data);

    NodeClasses m_knownClasses;
    std::vector<Class> m_classes;
    std::unordered_set<const NxFieldData*> m_described;
};

} // namespace meridane
