#pragma once

#include "meridane/base/values/VbString.h"
#include "meridane/scene/check/NxSceneProblem.h"
#include "meridane/scene/fields/ChangeRecord.h"
#include "meridane/scene/fields/NxRef.h"

#include <memory>
#include <span>
#include <vector>

namespace meridane {

class MendRecorder;

} // namespace meridane

/// Mends problems of a scene where that is safe, and can take it back. Each write goes through the setters of fields
/// and nodes, so that a journal records it. Thread of the user interface only.
///
/// What a mend does is in `meridane::ProblemClass::mend`. A mend looks at the scene as it is: a problem that isn't
/// there any more is left alone.
class NxSceneMend {
public:
    /// Who can take the mend back.
    enum class Undo {
        ByMend, ///< `undo` and `redo`, which keep what was changed
        ByJournal, ///< only a journal that records, so that nothing is kept twice
    };

    /// Nothing is changed yet.
    explicit NxSceneMend(Undo undo = Undo::ByMend);
    ~NxSceneMend();
    NxSceneMend(const NxSceneMend&) = delete;
    NxSceneMend& operator=(const NxSceneMend&) = delete;

    /// Mends those of the problems that can be mended. Returns how many were.
    std::size_t apply(std::span<const NxSceneProblem> problems);
    /// Takes everything back that `apply` has written. The scene must be in the state directly after it.
    void undo();
    /// Writes it again. The scene must be in the state directly after `undo`.
    void redo();

private:
    std::unique_ptr<meridane::MendRecorder> m_recorder;
};
