#pragma once

#include "orvane/transfer/FramedFiles.h"

#include "meridane/scene/nodes/NxGroup.h"
#include "meridane/scene/nodes/NxMaterial.h"
#include "meridane/scene/nodes/NxMesh.h"
#include "meridane/scene/nodes/NxTexture.h"

#include <array>
#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <unordered_set>
#include <vector>

#include <assimp/scene.h>

class NxCamera;
class NxLight;

namespace orvane {

/// Builds the import library's model from a scene, the reverse of `SceneBuilder`.
///
/// Transforms and groups with a name become nodes. A group without a name only limits its materials. Of a switch, the
/// shown children are exported. Lights that are off are left out.
class ModelBuilder {
public:
    /// The destination of images: none, inside the model, or files. The name of a file is `imageName` and a hash of the
    /// content, so that equal images have the same file and others never have.
    enum class Images { Nowhere, Inside, Beside };
    /// The number of meshes that a node may have.
    enum class MeshesPerNode { One, Many };

    ModelBuilder(Images images, std::string imageName, MeshesPerNode meshesPerNode);
    ~ModelBuilder();

    /// The model, or null; then `error` says what is wrong with the scene.
    [[nodiscard]] std::unique_ptr<aiScene> build(const NxGroup& scene, std::string& error);
    /// The files of the images, after `build`.
    [[nodiscard]] std::vector<NamedFile> takeImageFiles() { return std::move(m_imageFiles); }

private:
    /// What applies to the next mesh.
    struct Look {
        const NxMaterial* material = nullptr;
        std::array<const NxTexture*, NxTexture::roleCount> textures{}; // by role

        friend bool operator<(const Look& a, const Look& b)
        {
            return std::tie(a.material, a.textures) < std::tie(b.material, b.textures);
        }
    };
    /// A node of the model while it is being built.
    struct Node;

    void addChildren(Node& node, const NxGroup& group, Look look);
    void separateMeshes(Node& node) const;
    void addGroup(Node& node, const NxGroup& group, const Look& look);
    void addMesh(Node& node, const NxMesh& mesh, const Look& look);
    void addLight(Node& node, const NxLight& light);
    void addCamera(Node& node, const NxCamera& camera);
    Node& addPlaced(Node& node, const VbString& name, const char* otherwise, const aiMatrix4x4& transform);
    [[nodiscard]] unsigned int materialIndex(const Look& look);
    [[nodiscard]] std::string picturePath(const NxTexture& texture);
    [[nodiscard]] std::string addImageFile(std::string bytes);
    [[nodiscard]] std::string uniqueName(const VbString& name, const char* otherwise);

    Images m_images;
    std::string m_imageName;
    MeshesPerNode m_meshesPerNode;
    std::string m_error;
    std::vector<std::unique_ptr<aiMesh>> m_meshes;
    std::vector<std::unique_ptr<aiMaterial>> m_materials;
    std::vector<std::unique_ptr<aiTexture>> m_textures;
    std::vector<std::unique_ptr<aiLight>> m_lights;
    std::vector<std::unique_ptr<aiCamera>> m_cameras;
    std::vector<NamedFile> m_imageFiles;
    std::map<std::pair<const NxMesh*, Look>, int> m_meshIndices; // -1 for a mesh without a face
    std::map<Look, unsigned int> m_materialIndices;
    std::map<const NxTexture*, std::string> m_picturePaths;
    std::unordered_set<std::string> m_names; // of the nodes
};

} // namespace orvane
