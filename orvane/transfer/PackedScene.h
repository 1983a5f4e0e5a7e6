#pragma once

#include "orvane/transfer/SpaceNote.h"

#include "meridane/scene/nodes/NxGroup.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class NxSFImage;

/// The format of a scene in a pipe between two programs of the same build: long lists of numbers and images as they are
/// in memory, everything else as the text of a scene file.
///
/// The text "orvane-scene 2 SIZE" and a line feed, where SIZE is the number of bytes after that line; a line "warning
/// TEXT" for each warning; a line "note TEXT" if there is a note, or
/// "conversion TEXT" if the first node converts the unit or the up axis; a line "text SIZE" and the SIZE bytes of a
/// scene file, in which those fields are empty; then for each of them a block: a line "list SIZE NODE FIELD" or "image
/// SIZE NODE WIDTH HEIGHT COMPONENTS FIELD", and its SIZE bytes. NODE counts the nodes in the order of the text from 0
/// (see `meridane::NodeTraversal`), FIELD is the name of a field of that node. The blocks are in the order of the
/// nodes, and of the fields of a node.
namespace orvane {

/// A scene that is ready to be sent.
class PackedScene {
public:
    /// The start of a packed scene.
    static constexpr std::string_view firstWords = "orvane-scene 2 ";
    /// Lists with fewer values remain in the text, as do images with fewer pixels.
    static constexpr int shortestList = 64;

    /// More bytes of a warning are cut off, more warnings are left out.
    static constexpr std::size_t longestWarning = 4000;
    static constexpr std::size_t mostWarnings = 32;

    /// Moves the long lists and the images out of the scene, and writes the text of the rest. The warnings are what the
    /// user should know of the scene: text in UTF-8, control characters become blanks.
    explicit PackedScene(NxGroup& scene, const std::vector<std::string>& warnings = {}, const SpaceNote& note = {});

    /// Why the scene can't be written; empty if it can.
    [[nodiscard]] const std::string& failure() const noexcept { return m_failure; }
    /// The bytes in several parts, in order; valid as long as this object.
    [[nodiscard]] std::vector<std::string_view> portions() const;

private:
    /// A list or an image that was moved out of the scene.
    struct Block {
        std::string head;
        std::shared_ptr<const void> values;
        std::string_view bytes; // of the values
    };

    void takeBlocks(NxNode& node, std::size_t number);
    void takeImage(NxSFImage& field, const std::string& node, const std::string& name);
    template <typename Value>
    void addBlock(const char* word, const std::string& numbers, const std::string& name, std::vector<Value> values);
    void writeText(NxGroup& scene, const std::string& messageLines);

    std::string m_head; // of all, with the warnings, and of the text
    std::string m_text;
    std::vector<Block> m_blocks;
    std::string m_failure;
};

} // namespace orvane
