#pragma once

#include "orvane/transfer/PackedParts.h"

#include "meridane/scene/file/NxSceneReader.h"
#include "meridane/scene/nodes/NodeTraversal.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class NxMField;
class NxSFImage;

namespace orvane {

/// Reads a scene from the parts of a packed scene, in slices, all or nothing.
///
/// The parts aren't trusted: incomplete parts, a text that isn't a scene, and blocks that don't match its nodes are
/// refused. An image is moved into its field, a list is copied, and its block is released at once. Thread of the user
/// interface only.
class PackedSceneReader {
public:
    using State = NxSceneReader::State;

    explicit PackedSceneReader(PackedParts parts);
    PackedSceneReader(const PackedSceneReader&) = delete;
    PackedSceneReader& operator=(const PackedSceneReader&) = delete;

    /// Reads on until done or until the budget is spent; may exceed it by the time for one list.
    State step(std::chrono::microseconds budget);
    /// Reads to the end.
    State run();
    [[nodiscard]] State state() const noexcept { return m_state; }
    /// The fraction of text and blocks read so far, 0 to 1.
    [[nodiscard]] double progress() const noexcept;
    /// Why the bytes were refused, one line; empty unless the state is `Failed`.
    [[nodiscard]] const std::string& failure() const noexcept { return m_failure; }
    /// The scene: a group without a name that holds its nodes. Null unless the state is `Done`, and after the first
    /// call.
    [[nodiscard]] NxRef<NxGroup> takeScene();

private:
    void work(std::chrono::microseconds budget);
    void startText();
    void readText(std::chrono::microseconds budget);
    void findNode();
    void readBlock();
    void readValues(NxField& field);
    void readList(NxMField& list);
    void readImage(NxSFImage& image);
    [[nodiscard]] PackedBlock& block() { return m_blocks[m_done]; }
    void fail(std::string reason);
    void failAtBlock(std::string_view reason);

    PackedParts m_parts;
    State m_state = State::Working;
    std::string m_failure;
    std::unique_ptr<NxSceneReader> m_textReader;
    std::size_t m_textSize = 0;
    std::size_t m_blockBytes = 0; // of all blocks
    std::size_t m_doneBytes = 0; // of those that are read
    NxRef<NxGroup> m_scene;

    std::vector<PackedBlock> m_blocks;
    std::size_t m_done = 0; // blocks

    std::optional<meridane::NodeTraversal> m_traversal;
    NxNode* m_node = nullptr; // the present node of the traversal
    std::size_t m_visitedNodes = 0; // that one included
    int m_nextField = 0; // of that node that a block may be for
};

} // namespace orvane
