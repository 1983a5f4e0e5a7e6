#pragma once

#include "orvane/sdk/NodeEditor.h"

#include "meridane/scene/nodes/NxOrthographicCamera.h"
#include "meridane/scene/nodes/NxPerspectiveCamera.h"

namespace nodes {

/// The fields of a camera with a picture of what it sees.
class PerspectiveCameraEditor final : public orv::NodeEditor<NxPerspectiveCamera> {
    void build() override;
};

/// The fields of a camera with a picture of what it sees.
class OrthographicCameraEditor final : public orv::NodeEditor<NxOrthographicCamera> {
    void build() override;
};

} // namespace nodes
