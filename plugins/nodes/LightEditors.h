#pragma once

#include "orvane/sdk/NodeEditor.h"

#include "meridane/scene/nodes/NxDirectionalLight.h"
#include "meridane/scene/nodes/NxPointLight.h"
#include "meridane/scene/nodes/NxSpotLight.h"

namespace nodes {

/// The fields of a light with a picture of its rays.
class DirectionalLightEditor final : public orv::NodeEditor<NxDirectionalLight> {
    void build() override;
};

/// The fields of a light with a picture of its reach.
class PointLightEditor final : public orv::NodeEditor<NxPointLight> {
    void build() override;
};

/// The fields of a light with a picture of its cone.
class SpotLightEditor final : public orv::NodeEditor<NxSpotLight> {
    void build() override;
};

} // namespace nodes
