#pragma once

#include "meridane/scene/fields/single/NxSFColor.h"
#include "meridane/scene/fields/single/NxSFFloat.h"
#include "meridane/scene/fields/single/NxSFString.h"
#include "meridane/scene/nodes/NxTransform.h"

/// A place that somebody wants to find again. It shows what a node class of a plug-in declares: the scene tree, the
/// field table, scene files and `orvane --describe` know it as they know the tool's own classes.
class SampleMarker : public NxTransform {
    NX_NODE(SampleMarker)

public:
    NxSFColor color{this, {"color", "The colour of the marker.", meridane::range(0, 1)}, VbColor(1, 0.5F, 0)};
    NxSFFloat radius{this,
        {"radius", "How far from the marker its place reaches.", NxUnit::Metres, meridane::atLeast(0),
            meridane::softRange(0.1, 10), meridane::step(0.1)},
        1};
    NxSFString note{this, {"note", "What is to be found here."}};
    NxSFString document{this, {"document", "A file that says more.", meridane::filePath}};

protected:
    ~SampleMarker() override = default;
};
