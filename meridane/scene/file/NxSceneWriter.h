#pragma once

#include "meridane/base/WorkBudget.h"
#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxGroup.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace meridane {

class ScenePrinter;

} // namespace meridane

/// Writes a scene as the text of a scene file, in slices. The same scene gives the same bytes. The scene must not
/// change while it is written. Thread of the user interface only.
class NxSceneWriter {
public:
    /// `scene` is the group that holds the top nodes; its own name and fields aren't written.
    explicit NxSceneWriter(NxGroup* scene);
    ~NxSceneWriter();

    /// Gives the path to write in place of one that the scene has.
    using PathMap = std::function<std::string(std::string_view path)>;
    /// Writes what `map` makes of the file paths in the scene, the values of `NxSFFilePathString`; null for the paths
    /// themselves. The scene isn't changed. Comes before the first `step`.
    void setPathMap(PathMap map);

    /// Goes on writing until done or until the budget is spent, and appends to `text`, which the caller may empty
    /// between two calls. True while there is more to write.
    bool step(std::string& text, const meridane::WorkBudget& budget);
    /// The whole text; empty for a scene that can't be written.
    [[nodiscard]] static std::string toText(NxGroup* scene);
    /// Why the scene can't be written, such as nodes nested deeper than a reader takes; empty if it can. Known when
    /// `step` gave false: what was written until then is of no use.
    [[nodiscard]] const std::string& failure() const noexcept;
    /// The share of the nodes that is written, 0 to 1.
    [[nodiscard]] double progress() const noexcept;

private:
    std::unique_ptr<meridane::ScenePrinter> m_printer;
};
