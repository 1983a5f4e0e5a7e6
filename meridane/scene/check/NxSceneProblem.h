#pragma once

#include "meridane/scene/check/NxProblemKind.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

class NxField;

/// One problem of a scene. Many rows of a list, or many siblings, with the same problem are one problem.
///
/// It keeps its nodes alive, even if they are taken out of the scene.
struct NxSceneProblem {
    NxProblemKind kind = NxProblemKind::NotFinite; ///< what is wrong
    /// Whether `NxSceneMend` can mend this one.
    bool isMendable = false;
    /// The node with the problem. Never null in the problems of a check.
    NxRef<NxNode> node;
    /// The group that has the node among its children, for problems of siblings; otherwise null.
    NxRef<NxGroup> group;
    NxField* field = nullptr; ///< null for problems of the node as a whole
    int row = -1; ///< the first row with the problem; -1 if the field is no list
    int place = -1; ///< with `group`: the index of the node in it when it was checked
    /// The places of all, for a problem that many siblings share; the first is `place`. Otherwise null.
    std::shared_ptr<const std::vector<int>> places;
    std::size_t count = 1; ///< how many numbers, rows or siblings have the problem
    std::size_t total = 1; ///< out of how many
    std::size_t limit = 0; ///< what the number is compared with, such as the number of positions
    std::string detail; ///< the part of the sentence that isn't a number, such as a file name

    /// What all problems of this kind have in common.
    [[nodiscard]] const meridane::ProblemClass& about() const noexcept { return meridane::problemClass(kind); }
    /// The problem in one sentence of plain words, in UTF-8. Names from the scene are shortened.
    [[nodiscard]] std::string sentence() const;
};

namespace meridane {

/// What the text of a problem says besides its kind; the members are those of `NxSceneProblem`.
struct ProblemFacts {
    std::size_t count = 1; ///< how many numbers, rows or siblings have the problem
    std::size_t total = 1; ///< out of how many
    std::size_t limit = 0; ///< what the number is compared with
    std::string_view detail = {}; ///< the part that isn't a number; it must outlive the call
    bool isShared = false; ///< by many siblings, as one problem
};

/// The problem as the second half of a sentence about the node, such as "it has no positions to draw".
[[nodiscard]] std::string problemText(NxProblemKind kind, const ProblemFacts& facts = {});

} // namespace meridane
