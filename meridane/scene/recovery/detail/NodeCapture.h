#pragma once

#include "meridane/scene/recovery/detail/DirtyNode.h"
#include "meridane/scene/recovery/detail/OperationWriter.h"

#include <cstddef>
#include <deque>

class NxField;
class NxMField;
class NxNode;

namespace meridane {

class Journal;
class LogNumbers;

/// Captures the dirty places of a node piece by piece, with the contents that they have then.
class NodeCapture {
public:
    /// All live longer. Nodes that become known are appended to `waiting`.
    NodeCapture(Journal& journal, LogNumbers& numbers, OperationWriter& operations, std::deque<std::size_t>& waiting);

    /// What is to be captured of a node of which the file knows only the class: all that isn't as in a new node. The
    /// journal reports all changes from now on.
    [[nodiscard]] DirtyNode contentsOf(NxNode& node);
    /// Captures one piece of what is dirty in a node and removes it from there. `number` is that in the journal. Not to
    /// be called if nothing is dirty.
    void capturePiece(NxNode& node, std::size_t number, DirtyNode& dirty);

private:
    bool captureField(NxField& field, const OperationWriter::Place& place, DirtyField& dirty);
    void captureImage(NxField& field, const OperationWriter::Place& place, DirtyField& dirty);
    void captureText(const NxField& field, const OperationWriter::Place& place, DirtyField& dirty);
    void captureRows(const NxMField& list, const OperationWriter::Place& place, DirtyField& dirty);
    void captureUnknownField(const NxNode& node, std::uint64_t number, DirtyNode& dirty);
    void captureChildren(const NxNode& node, std::uint64_t number, DirtyNode& dirty);

    Journal& m_journal;
    LogNumbers& m_numbers;
    OperationWriter& m_operations;
    std::deque<std::size_t>& m_waiting;
};

} // namespace meridane
