#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NodeTraversal.h"
#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/recovery/detail/ByteReader.h"
#include "meridane/scene/recovery/detail/RecoveryFormat.h"
#include "meridane/scene/recovery/detail/ReplayClasses.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace meridane {

/// Applies the operations of a recovery file to a scene.
class OperationReplay {
public:
    /// `base` has `nodeCount` nodes, itself included, else the replay fails. `operations` must outlive the object.
    OperationReplay(std::span<const std::string_view> operations, NxRef<NxGroup> base, std::uint64_t nodeCount);

    /// Applies some operations. Returns true if there are more.
    bool step(const WorkBudget& budget);
    /// Why an operation doesn't fit; empty if all do.
    [[nodiscard]] const std::string& failure() const noexcept { return m_failure; }
    [[nodiscard]] double progress() const noexcept;
    /// The scene after all operations.
    [[nodiscard]] NxRef<NxGroup> takeScene();

private:
    /// A content that comes in several parts.
    struct Content {
        std::uint64_t node = 0;
        std::uint64_t field = 0;
        RecoveryFormat::Operation operation{};

        friend bool operator==(const Content&, const Content&) = default;
    };

    void numberNodes();
    void releaseNodes();
    void applyNext();
    bool apply(RecoveryFormat::Operation operation);
    bool addClass();
    bool addNode();
    bool setName();
    bool setIgnored();
    bool setValue();
    bool setImage();
    bool replacePlainRows();
    bool replaceTextRows();
    bool replaceChildren();
    bool addUnknownField();

    [[nodiscard]] bool readNode(std::uint64_t& number, NxNode*& node);
    [[nodiscard]] bool readField(std::uint64_t& number, std::uint64_t& index, NxField*& field);
    bool beginPart(const Content& content, std::uint8_t parts);
    bool endPart(std::uint8_t parts);
    bool fail(std::string_view reason);

    std::span<const std::string_view> m_operations;
    std::size_t m_bytes = 0; // of all operations
    std::size_t m_doneBytes = 0; // before the present entry
    std::size_t m_nextEntry = 0;
    ByteReader m_reader; // of the present entry
    std::size_t m_entrySize = 0;

    NxRef<NxGroup> m_scene;
    std::uint64_t m_nodeCount;
    std::optional<NodeTraversal> m_traversal;
    std::vector<NxRef<NxNode>> m_nodes; // by number
    ReplayClasses m_classes;
    std::optional<Content> m_open; // the content of which parts are missing
    std::string m_content; // the parts of a text so far
    std::vector<unsigned char> m_pixels; // those of an image
    std::uint64_t m_width = 0; // of that image
    std::uint64_t m_height = 0;
    std::uint64_t m_components = 0;
    NxFieldContainer::UnknownField m_unknownField;
    std::string m_failure;
};

} // namespace meridane
