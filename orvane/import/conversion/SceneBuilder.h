#pragma once

#include "orvane/import/conversion/TextureMapping.h"
#include "orvane/import/conversion/TextureSearch.h"
#include "orvane/import/mending/ImportOptions.h"
#include "orvane/import/mending/ImportWarnings.h"

#include "meridane/scene/fields/NxRef.h"
#include "meridane/scene/nodes/NxCamera.h"
#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <vector>

#include <assimp/matrix4x4.h>

struct aiCamera;
struct aiLight;
struct aiNode;
struct aiScene;

namespace orvane {

/// Builds our scene from a model that the import library has read.
///
/// Lights come first, at the top of the scene, since they shine on what follows. A node becomes a transform with the
/// node's name, or that of its first mesh. Of groups that have one child each and no effect, one with a name remains.
/// A node contains a group for each of its meshes, with material and texture before the mesh. Meshes,
/// materials and textures that the model uses several times are shared.
class SceneBuilder {
public:
    /// Model and warnings must outlive the builder. `path` is that of the model's file.
    SceneBuilder(const aiScene& model, const std::string& path, const ImportOptions& options, ImportWarnings& warnings);

    /// The scene, or null; then `error` says what a scene can't contain. If the root node of the model converts its
    /// unit and its up axis, its transform contains the lights too, so that it converts all of the model.
    [[nodiscard]] NxRef<NxGroup> build(bool isConverted, std::string& error);

private:
    /// Adds all lights in front of the children of the node that the root has become.
    void addLightsOf(const aiNode& root, NxNode& top);
    void addLights(NxGroup& scene, const aiNode& node, const aiMatrix4x4& above);
    bool addNode(NxGroup& parent, const aiNode& node, int depth, const VbString& nameAbove = {});
    [[nodiscard]] bool isEmptyLink(const aiNode& node) const;
    [[nodiscard]] bool isJoined(const aiNode& node) const;
    [[nodiscard]] VbString nameOf(const aiNode& node) const;
    bool addContent(NxGroup& group, const aiNode& node, int depth);
    /// Replaces a node that only positions a camera by the camera. Returns false for other nodes.
    bool addPlainCamera(NxGroup& parent, const aiNode& node);
    [[nodiscard]] bool isMadeUp(const aiNode& root) const;
    [[nodiscard]] NxRef<NxCamera> cameraOf(const aiNode& node) const;

    [[nodiscard]] NxRef<NxGroup> meshGroup(unsigned int index);
    [[nodiscard]] NxRef<NxMaterial> material(unsigned int index);
    /// Adds the textures of a material to a group. Returns how they are placed on the surface.
    TextureMapping addTextures(NxGroup& group, unsigned int materialIndex);
    [[nodiscard]] NxRef<NxTexture> texture(unsigned int materialIndex, NxTexture::Role role);
    void findImage(NxTexture& texture);

    using TextureKey = std::tuple<std::string, int, int, bool, NxTexture::Role>; // path, wraps, whether it is opaque

    const aiScene& m_model;
    ImportOptions m_options;
    std::string m_fileName; // without a folder
    ImportWarnings& m_warnings;
    TextureSearch m_textureFiles;
    std::unordered_map<std::string_view, std::vector<const aiLight*>> m_lights; // by the name of their node
    std::unordered_map<std::string_view, const aiCamera*> m_cameras;
    std::vector<NxRef<NxGroup>> m_meshGroups; // as the model's meshes, made when used
    std::vector<NxRef<NxMaterial>> m_materials; // as the model's materials, made when used
    std::map<TextureKey, NxRef<NxTexture>> m_textures;
    bool m_isGltf = false;
    bool m_isCollada = false;
};

} // namespace orvane
