#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/fields/NxFieldContainer.h"
#include "meridane/scene/file/detail/SceneSharing.h"
#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/text/detail/ValueWrapper.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class NxField;

namespace meridane {

/// The implementation of `NxSceneWriter`, divided into units of work: first the scene is examined, then each unit
/// writes the head of a node, a field or a slice of its value, or the end of a node. Keeps its own stack.
class ScenePrinter {
public:
    explicit ScenePrinter(NxGroup* scene);

    /// Returns the path to write instead of one in the scene.
    using PathMap = std::function<std::string(std::string_view path)>;

    void setPathMap(PathMap map) { m_pathMap = std::move(map); }
    bool step(std::string& text, const WorkBudget& budget);
    [[nodiscard]] double progress() const noexcept;
    [[nodiscard]] const std::string& failure() const noexcept { return m_failure; }

private:
    enum class Phase { Sharing, Nodes, Value, UnknownValue, Done };

    /// A node whose closing brace hasn't been written.
    struct OpenNode {
        NxNode* node;
        NxFieldData* data; // null for the scene itself, whose fields aren't written
        int nextField = 0;
        std::size_t nextUnknownField = 0;
        std::size_t nextChild = 0;
    };

    void work(std::string& text);
    void lookOver(std::string& text);
    void writeNext(std::string& text);
    bool startNextField(std::string& text);
    bool writeMappedPath(std::string& text, const NxField& field) const;
    void startField(std::string& text, std::string_view name, bool ignored);
    void writeValueSlice(std::string& text);
    void writeUnknownSlice(std::string& text);
    void writeChild(std::string& text, NxNode* child);
    void startNode(std::string& text, NxNode* node, const std::string& label);
    void writeQuoted(std::string& text, std::string_view name);
    void indent(std::string& text) const;
    void fail(std::string message);

    Phase m_phase = Phase::Sharing;
    SceneSharing m_sharing;
    std::vector<OpenNode> m_open; // from the scene itself on
    std::size_t m_written = 0; // nodes
    std::string m_failure;
    PathMap m_pathMap;

    // The value that is being written over several slices.
    const NxField* m_field = nullptr;
    const NxFieldContainer::UnknownField* m_unknownField = nullptr;
    std::size_t m_position = 0;
    std::string m_slice;
    ValueWrapper m_wrapper;
};

} // namespace meridane
