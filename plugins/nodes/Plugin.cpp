#include "orvane/sdk/Plugin.h"

#include "plugins/nodes/CameraEditors.h"
#include "plugins/nodes/GroupEditors.h"
#include "plugins/nodes/LightEditors.h"
#include "plugins/nodes/MaterialEditor.h"
#include "plugins/nodes/MeshEditor.h"
#include "plugins/nodes/TextureEditor.h"
#include "plugins/nodes/TransformEditors.h"

ORV_PLUGIN("Nodes", "1.0.0", nodes::GroupEditor, nodes::SwitchEditor, nodes::TransformEditor,
    nodes::MatrixTransformEditor, nodes::MeshEditor, nodes::MaterialEditor, nodes::TextureEditor,
    nodes::DirectionalLightEditor, nodes::PointLightEditor, nodes::SpotLightEditor, nodes::PerspectiveCameraEditor,
    nodes::OrthographicCameraEditor)
