#pragma once

#include "orvane/import/NodeOrder.h"

#include "meridane/scene/NxSceneReader.h"

#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace orvane {

/// Reads a scene from the bytes of a packed scene, in slices, all or nothing.
///
/// Nothing is taken for granted: bytes that aren't a packed scene through and through, whose text isn't a scene, or
/// whose lists don't fit the nodes of that scene are refused. Thread of the user interface only.
class PackedSceneReader {
public:
    using State = NxSceneReader::State;

    explicit PackedSceneReader(std::string bytes);
    PackedSceneReader(const PackedSceneReader&) = delete;
    PackedSceneReader& operator=(const PackedSceneReader&) = delete;

    /// Goes on reading until done or until the budget is spent; it may overrun it by the time of one list.
    State step(std::chrono::microseconds budget);
    /// Reads to the end.
    State run();
    [[nodiscard]] State state() const noexcept { return m_state; }
    /// The share of the bytes that is read, 0 to 1.
    [[nodiscard]] double progress() const noexcept;
    /// Why the bytes were refused, one line; empty unless the state is `Failed`.
    [[nodiscard]] const std::string& failure() const noexcept { return m_failure; }
    /// The scene: a group without a name that holds its nodes. Null unless the state is `Done`, and after the first
    /// call.
    [[nodiscard]] NxRef<NxGroup> takeScene();

private:
    /// The list that is being read.
    struct List {
        std::string_view bytes;
        std::size_t node = 0; // its number
        std::string_view field; // its name
    };

    void work(std::chrono::microseconds budget);
    void startText();
    void readText(std::chrono::microseconds budget);
    void readListHead();
    void findNode();
    void readList();
    template <typename Values>
    void readValues(Values& list);
    void fail(std::string reason);
    void failAtList(std::string_view reason);

    const std::string m_bytes;
    std::string_view m_rest; // what isn't read yet
    State m_state = State::Working;
    std::string m_failure;
    std::unique_ptr<NxSceneReader> m_textReader;
    std::size_t m_textSize = 0;
    NxRef<NxGroup> m_scene;

    std::optional<NodeOrder> m_order;
    NxNode* m_node = nullptr; // where the walk is
    std::size_t m_walked = 0; // nodes, that one included
    int m_nextField = 0; // of that node that a list may be for
    std::optional<List> m_list;
    std::size_t m_lists = 0; // that were found so far, that one included
};

} // namespace orvane
