#pragma once

#include <QString>

class SceneView;

namespace orvane {

/// What a view shows, in sentences, for people who can't see it: how much there is, from where it is seen, what is
/// selected, how large that is and where in the picture.
[[nodiscard]] QString viewText(const SceneView& view);

} // namespace orvane
