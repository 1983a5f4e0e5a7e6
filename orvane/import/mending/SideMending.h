#pragma once

struct aiScene;

namespace orvane {

/// Makes the materials of glTF double-sided whose surfaces aren't closed. The format has single-sided materials as its
/// default, and many exporters state nothing; from behind, such surfaces would be invisible, and the whole model with
/// them. On closed surfaces nobody sees a difference from outside.
void mendSides(aiScene& model);

} // namespace orvane
