#pragma once

#include "meridane/scene/nodes/NxGroup.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class NxSFImage;

/// How a scene travels through a pipe when both ends are of the same build: its long lists of numbers and its images as
/// they lie in memory, all else as the text of a scene file.
///
/// The text "orvane-scene 2 SIZE" and a line feed, where SIZE counts all bytes behind that line; a line "text SIZE" and
/// the SIZE bytes of a scene file, in which those fields are empty; then for each of them a block: a line
/// "list SIZE NODE FIELD" or "image SIZE NODE WIDTH HEIGHT COMPONENTS FIELD", and its SIZE bytes. NODE counts the nodes
/// in the order of the text from 0 (see `meridane::NodeTraversal`), FIELD is the name of a field of that node. The blocks are in the
/// order of the nodes, and of the fields of a node.
namespace orvane {

/// A scene that is ready to be sent.
class PackedScene {
public:
    /// What a packed scene begins with.
    static constexpr std::string_view firstWords = "orvane-scene 2 ";
    /// Lists with fewer values stay in the text, and images with fewer pixels.
    static constexpr int shortestList = 64;

    /// Takes the long lists and the images out of the scene, which then goes without them, and writes its text.
    explicit PackedScene(NxGroup& scene);

    /// Why the scene can't be told; empty if it can.
    [[nodiscard]] const std::string& failure() const noexcept { return m_failure; }
    /// The bytes, in portions, one behind the other; valid as long as this object.
    [[nodiscard]] std::vector<std::string_view> portions() const;

private:
    /// A list or an image that isn't in the scene any more.
    struct Block {
        std::string head;
        std::shared_ptr<const void> values;
        std::string_view bytes; // of the values
    };

    void takeBlocks(NxNode& node, std::size_t number);
    void takeImage(NxSFImage& field, const std::string& node, const std::string& name);
    template <typename Value>
    void addBlock(const char* word, const std::string& numbers, const std::string& name, std::vector<Value> values);
    void writeText(NxGroup& scene);

    std::string m_head; // of all, and of the text
    std::string m_text;
    std::vector<Block> m_blocks;
    std::string m_failure;
};

} // namespace orvane
