#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/file/NxReadFailure.h"
#include "meridane/scene/file/detail/SceneLimits.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <memory>
#include <optional>
#include <string>

namespace meridane {

class SceneParser;

} // namespace meridane

/// Reads a scene from the text of a scene file, in slices, all or nothing.
///
/// The text is checked as it is read: version, UTF-8, syntax, field values, references, and limits on nesting, tokens
/// and counts that keep any input from exhausting stack or memory. Unknown node classes and unknown fields are kept.
/// The format is described in docs/scene-format.md. Thread of the user interface only.
class NxSceneReader {
public:
    /// The greatest depth of nested nodes.
    static constexpr int maxDepth = meridane::maxSceneDepth;

    /// Whether a slice has left something to read, or the text was refused.
    enum class State { Working, Done, Failed };

    /// `text` is the whole content of the file, `fileName` the name for messages.
    NxSceneReader(std::string text, std::string fileName);
    /// Why a file that begins with these bytes is no scene file, by its first line alone; nothing if it may be one. For
    /// checking a file before all of it is read.
    [[nodiscard]] static std::optional<NxReadFailure> checkBeginning(std::string beginning, std::string fileName);
    ~NxSceneReader();

    /// Reads on until done or until the budget is spent, which it may exceed by about a millisecond.
    State step(const meridane::WorkBudget& budget);
    /// Reads to the end.
    State run();
    /// The result of the last `step`.
    [[nodiscard]] State state() const noexcept;
    /// The fraction of the text read so far, 0 to 1.
    [[nodiscard]] double progress() const noexcept;
    /// Why the text was refused; empty unless the state is `Failed`.
    [[nodiscard]] const NxReadFailure& failure() const noexcept;
    /// The scene: a group without a name that holds the nodes of the file. Null unless the state is `Done`, and after
    /// the first call.
    [[nodiscard]] NxRef<NxGroup> takeScene();

private:
    std::unique_ptr<meridane::SceneParser> m_parser;
};
