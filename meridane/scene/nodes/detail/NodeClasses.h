#pragma once

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxNode.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class NxFieldData;

namespace meridane {

/// What a reader of scene files knows of one node class.
class NodeClass {
public:
    /// Looks up a class. A class that isn't registered, or whose instances can't be made, gives an `NxUnknownNode`.
    explicit NodeClass(std::string_view name);

    /// Makes a node of the class.
    [[nodiscard]] NxRef<NxNode> create() const;
    /// The position of the field of that name, or -1. Looks from `hint` on first: fields tend to come in order.
    [[nodiscard]] int findField(std::string_view name, std::size_t hint) const noexcept;
    [[nodiscard]] NxField* field(const NxNode& node, std::size_t index) const;
    [[nodiscard]] std::size_t fieldCount() const noexcept { return m_fieldNames.size(); }
    [[nodiscard]] const std::string& name() const noexcept { return m_name; }
    /// Whether nodes of the class hold others.
    [[nodiscard]] bool isGroup() const noexcept { return m_group; }

private:
    std::string m_name;
    NxType m_type;
    bool m_standIn;
    bool m_group;
    NxFieldData* m_data;
    std::vector<std::string_view> m_fieldNames;
};

/// The classes that one scene file names, each looked up once.
class NodeClasses {
public:
    /// The class of that name; the reference stays valid.
    [[nodiscard]] const NodeClass& find(std::string_view name);

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const noexcept { return std::hash<std::string_view>()(text); }
    };
    std::unordered_map<std::string, NodeClass, Hash, std::equal_to<>> m_classes;
    const NodeClass* m_latest = nullptr;
};

} // namespace meridane
