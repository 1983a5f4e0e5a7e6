#pragma once

#include "orvane/import/mending/ImportOptions.h"
#include "orvane/transfer/SpaceNote.h"

struct aiScene;

namespace orvane {

/// Turns and scales the root node of a model so that y points up and a unit is a metre, if its file states another up
/// axis or unit and the reader of its format leaves them as they are. Returns a sentence about what was done, or about
/// what was kept although the file states it; empty if there was nothing to do.
///
/// The readers of glTF, whose files are in metres with y upwards, and of Collada, which converts, need nothing here.
[[nodiscard]] SpaceNote convertSpace(aiScene& model, ImportOptions::Space wanted);

} // namespace orvane
