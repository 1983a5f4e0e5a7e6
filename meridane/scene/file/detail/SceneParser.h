#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/fields/NxField.h"
#include "meridane/scene/file/NxReadFailure.h"
#include "meridane/scene/file/detail/SceneReferences.h"
#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/nodes/detail/NodeClasses.h"
#include "meridane/scene/text/TextReader.h"
#include "meridane/scene/text/detail/RawValue.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace meridane {

/// The implementation of `NxSceneReader`, divided into units of work: the first line, the encoding block by block, then
/// one statement or one slice of a value at a time. It keeps a list of open nodes instead of using recursion.
class SceneParser {
public:
    SceneParser(std::string text, std::string fileName);

    /// Reads until done, until an error, or until the budget is spent.
    void step(const WorkBudget& budget);
    /// The first unit of the work.
    void readFirstLine();
    [[nodiscard]] bool isWorking() const noexcept { return !isDone() && !hasFailed(); }
    [[nodiscard]] bool isDone() const noexcept { return m_phase == Phase::Done; }
    [[nodiscard]] bool hasFailed() const noexcept { return m_phase == Phase::Failed; }
    [[nodiscard]] double progress() const noexcept;
    [[nodiscard]] const NxReadFailure& failure() const noexcept { return m_failure; }
    [[nodiscard]] NxRef<NxGroup> takeScene();

private:
    enum class Phase {
        FirstLine,
        Encoding,
        Statement,
        Value,
        RawValue,
        RawText,
        Reference,
        EndOfStatement,
        Done,
        Failed
    };

    /// A node whose closing brace hasn't been read. The elements of the list are reused.
    struct OpenNode {
        NxNode* node = nullptr;
        NxGroup* group = nullptr; // the same node, or null for one that holds no others
        const NodeClass* nodeClass = nullptr;
        std::string label;
        std::size_t place = 0; // where it began
        std::size_t nextField = 0; // where to look first
        std::vector<bool> seenFields;
        std::unordered_set<std::string_view> seenUnknownFields;
    };

    void workInSlice();
    void work();
    void checkEncoding();
    void readStatement();
    void readValue();
    void readRawValue();
    void takeRawText();
    void findReference();

    [[nodiscard]] OpenNode& top() noexcept { return m_open[m_depth]; }
    void skipSeparators();
    bool readIdentifier(std::string_view& word, std::string_view expected);
    bool readNameText(std::string& name);
    bool isEqualsAhead();
    void startNode(std::string_view className, std::size_t place);
    bool readNodeHead(std::string& name, std::string& label);
    void startReference();
    void startField(std::string_view name, std::size_t place, bool ignored);
    void startKnownField(std::size_t index, std::string_view name, std::size_t place, bool ignored);
    void startUnknownField(std::string_view name, std::size_t place, bool ignored);
    void endStatement();
    void endNode();
    void endText();
    [[nodiscard]] bool isOpen(std::string_view nameOrLabel) const;

    /// Does nothing while the text reader is interrupted, because then nothing is known to be wrong.
    void failAt(std::size_t offset, std::string message);
    void endAt(std::size_t offset, std::string message);
    void failTwice(std::string_view name, std::size_t place);
    void failForMemory();
    void failExpecting(std::size_t offset, std::string_view expected);
    /// Fails with the message of the text reader.
    void failAsNoted();

    const std::string m_text;
    NxReadFailure m_failure;
    Phase m_phase = Phase::FirstLine;
    TextReader m_reader;
    std::size_t m_checked = 0; // bytes known to be UTF-8
    NxRef<NxGroup> m_scene;
    NodeClasses m_classes;
    SceneReferences m_references;
    std::vector<OpenNode> m_open; // from the scene itself on
    std::size_t m_depth = 0; // of the innermost open node

    // The statement that is being read over several slices.
    NxField* m_field = nullptr;
    bool m_firstSlice = false;
    RawValue m_rawValue;
    NxFieldContainer::UnknownField m_unknownField;
    std::string m_reference;
    std::size_t m_referencePlace = 0;
};

} // namespace meridane
