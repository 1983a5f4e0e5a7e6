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

    /// Returns the path to write instead of one in the scene.
    using PathMap = std::function<std::string(std::string_view path)>;
    /// Applies `map` to the written file paths, the values of `NxSFFilePathString`; null for none. The scene isn't
    /// changed. To be called before the first `step`.
    void setPathMap(PathMap map);

    /// Writes on until done or until the budget is spent. Appends to `text`, which the caller may clear between calls.
    /// Returns true if there is more to write.
    bool step(std::string& text, const meridane::WorkBudget& budget);
    /// The whole text; empty for a scene that can't be written.
    [[nodiscard]] static std::string toText(NxGroup* scene);
    /// Why the scene can't be written, such as nodes that are nested too deep for the reader; empty if it can. Known
    /// when `step` has returned false; the text written until then is useless.
    [[nodiscard]] const std::string& failure() const noexcept;
    /// The fraction of the nodes written so far, 0 to 1.
    [[nodiscard]] double progress() const noexcept;

private:
    std::unique_ptr<meridane::ScenePrinter> m_printer;
};
