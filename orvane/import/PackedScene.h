#pragma once

#include "meridane/scene/NxGroup.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// How a scene travels through a pipe when both ends are of the same build: its long lists of numbers as they lie in
/// memory, all else as the text of a scene file.
///
/// The text "orvane-scene 1 SIZE" and a line feed, where SIZE counts all bytes behind that line; a line "text SIZE" and
/// the SIZE bytes of a scene file, in which those lists are empty; then for each list a line "list SIZE NODE FIELD" and
/// its SIZE bytes. NODE counts the nodes in the order of the text from 0 (see `NodeOrder`), FIELD is the name of a
/// field of that node. The lists stand in the order of the nodes, and of the fields of a node.
namespace orvane {

/// A scene that is ready to be sent.
class PackedScene {
public:
    /// Lists with fewer values stay in the text.
    static constexpr int shortestList = 64;

    /// Takes the long lists out of the scene, which then goes without them, and writes its text.
    explicit PackedScene(NxGroup& scene);

    /// Why the scene can't be told; empty if it can.
    [[nodiscard]] const std::string& failure() const noexcept { return m_failure; }
    /// The bytes, in portions, one behind the other; valid as long as this object.
    [[nodiscard]] std::vector<std::string_view> portions() const;

private:
    /// A list that isn't in the scene any more.
    struct List {
        std::string head;
        std::shared_ptr<const void> values;
        std::string_view bytes; // of the values
    };

    void takeLists(NxNode& node, std::size_t number);
    void writeText(NxGroup& scene);

    std::string m_head; // of all, and of the text
    std::string m_text;
    std::vector<List> m_lists;
    std::string m_failure;
};

/// The number of all bytes of a packed scene, from its first bytes. Nothing when they don't tell yet, or aren't those
/// of a packed scene.
[[nodiscard]] std::optional<std::size_t> packedSceneSize(std::string_view bytes);

} // namespace orvane
