#include "orvane/import/conversion/SceneBuilder.h"

#include "orvane/import/conversion/CameraConversion.h"
#include "orvane/import/conversion/LightConversion.h"
#include "orvane/import/conversion/MaterialConversion.h"
#include "orvane/import/conversion/MeshConversion.h"
#include "orvane/import/conversion/TransformConversion.h"
#include "orvane/import/mending/ColorMending.h"
#include "orvane/import/mending/Lists.h"
#include "orvane/import/mending/Names.h"
#include "orvane/import/mending/SourceFormat.h"
#include "orvane/import/mending/Texts.h"

#include "meridane/scene/file/NxSceneReader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <optional>
#include <span>
#include <utility>

#include <assimp/scene.h>

namespace orvane {
namespace {

bool isPlain(const aiNode& node)
{
    return node.mNumChildren == 0 && node.mNumMeshes == 0;
}

// Of the nodes that many readers add above those of the model.
constexpr std::array<std::string_view, 3> rootNames{"ROOT", "RootNode", "Scene"};

} // namespace

SceneBuilder::SceneBuilder(
    const aiScene& model, const std::string& path, const ImportOptions& options, ImportWarnings& warnings)
    : m_model(model)
    , m_options(options)
    , m_fileName(std::filesystem::path(path).filename().string())
    , m_warnings(warnings)
    , m_textureFiles(path)
    , m_meshGroups(model.mNumMeshes)
    , m_materials(model.mNumMaterials)
    , m_isGltf(hasSourceFormat(model, "glTF2"))
    , m_isCollada(hasSourceFormat(model, "Collada"))
{
    for (const aiLight* light : listOf(model.mLights, model.mNumLights))
        m_lights[viewOf(light->mName)].push_back(light);
    for (const aiCamera* camera : listOf(model.mCameras, model.mNumCameras))
        m_cameras.emplace(viewOf(camera->mName), camera);
}

NxRef<NxGroup> SceneBuilder::build(bool isConverted, std::string& error)
{
    NxRef<NxGroup> scene = new NxGroup;
    const aiNode& root = *m_model.mRootNode;
    if (isConverted) {
        if (addNode(*scene, root, 1)) {
            addLightsOf(root, *scene->getChild(0));
            return scene;
        }
    } else {
        addLights(*scene, root, aiMatrix4x4());
        if (isMadeUp(root) ? addContent(*scene, root, 1) : addNode(*scene, root, 1))
            return scene;
    }
    error = "nodes are nested more than " + std::to_string(NxSceneReader::maxDepth) + " deep";
    return {};
}

void SceneBuilder::addLightsOf(const aiNode& root, NxNode& top)
{
    auto* const group = dynamic_cast<NxGroup*>(&top);
    const NxRef<NxGroup> lights = new NxGroup;
    aiMatrix4x4 toRoot = root.mTransformation;
    addLights(*lights, root, toRoot.Inverse());
    for (int index = 0; group != nullptr && index < lights->getNumChildren(); ++index)
        group->insertChild(lights->getChild(index), index);
}

// Many readers add a node above those of the model.
bool SceneBuilder::isMadeUp(const aiNode& root) const
{
    const std::string_view name = viewOf(root.mName);
    // A node that has no name in its file is a group like others.
    const bool isGroup = m_options.keepsGroups && !name.empty() && !name.starts_with('<');
    const bool isNamed = (isGroup || !isMadeUpName(name))
        && std::find(rootNames.begin(), rootNames.end(), name) == rootNames.end() && name != m_fileName;
    return !isNamed && root.mTransformation.IsIdentity() && !m_cameras.contains(name) && !m_lights.contains(name);
}

void SceneBuilder::addLights(NxGroup& scene, const aiNode& node, const aiMatrix4x4& above)
{
    const aiMatrix4x4 worldTransform = above * node.mTransformation;
    const auto place = m_lights.find(viewOf(node.mName));
    if (place != m_lights.end()) {
        for (const aiLight* light : place->second) {
            if (const NxRef<NxLight> made = toLight(*light, worldTransform))
                scene.addChild(made.get());
        }
        // Names aren't always unique; a light belongs to the first node with its name.
        place->second.clear();
    }
    for (const aiNode* child : listOf(node.mChildren, node.mNumChildren))
        addLights(scene, *child, worldTransform);
}

bool SceneBuilder::isEmptyLink(const aiNode& node) const
{
    const std::string_view name = viewOf(node.mName);
    return node.mNumMeshes == 0 && listOf(node.mChildren, node.mNumChildren).size() == 1
        && node.mTransformation.IsIdentity() && !m_lights.contains(name) && !m_cameras.contains(name);
}

// The last group of a chain remains if it has a name.
bool SceneBuilder::isJoined(const aiNode& node) const
{
    return !m_options.keepsGroups && isEmptyLink(node)
        && (isMadeUpName(viewOf(node.mName)) || isEmptyLink(*node.mChildren[0]));
}

VbString SceneBuilder::nameOf(const aiNode& node) const
{
    const VbString name = toName(node.mName);
    return !name.isEmpty() || node.mNumMeshes == 0 ? name : toName(m_model.mMeshes[node.mMeshes[0]]->mName);
}

bool SceneBuilder::addNode(NxGroup& parent, const aiNode& node, int depth, const VbString& nameAbove)
{
    if (isJoined(node)) {
        const VbString name = toName(node.mName);
        return addNode(parent, *node.mChildren[0], depth, name.isEmpty() ? nameAbove : name);
    }
    // A node that only positions a light or a camera isn't needed: the light or camera has the position.
    if (isPlain(node) && (m_lights.contains(viewOf(node.mName)) || addPlainCamera(parent, node)))
        return true;
    const NxRef<NxGroup> group = makeTransform(node.mTransformation);
    const VbString name = nameOf(node);
    group->setName(name.isEmpty() ? nameAbove : name);
    parent.addChild(group.get());
    return addContent(*group, node, depth + 1);
}

bool SceneBuilder::addContent(NxGroup& group, const aiNode& node, int depth)
{
    // A mesh is two levels below the group.
    if (depth + 2 > NxSceneReader::maxDepth)
        return false;
    if (const NxRef<NxCamera> camera = cameraOf(node))
        group.addChild(camera.get());
    for (const unsigned int index : std::span(node.mMeshes, node.mNumMeshes)) {
        if (const NxRef<NxGroup> mesh = meshGroup(index))
            group.addChild(mesh.get());
    }
    const auto nodes = listOf(node.mChildren, node.mNumChildren);
    return std::all_of(nodes.begin(), nodes.end(), [&](const aiNode* child) { return addNode(group, *child, depth); });
}

bool SceneBuilder::addPlainCamera(NxGroup& parent, const aiNode& node)
{
    const NxRef<NxCamera> camera = cameraOf(node);
    if (!camera || !moveCamera(*camera, node.mTransformation))
        return false;
    parent.addChild(camera.get());
    return true;
}

NxRef<NxCamera> SceneBuilder::cameraOf(const aiNode& node) const
{
    const auto place = m_cameras.find(viewOf(node.mName));
    if (place == m_cameras.end())
        return {};
    if (!m_isGltf)
        return toCamera(*place->second);
    // The library's reader of this format repeats the node's translation in the position. It computes the angle of the
    // width by multiplying the angle of the height instead of its tangent.
    aiCamera camera = *place->second;
    camera.mPosition = aiVector3D();
    if (camera.mAspect > 0)
        camera.mHorizontalFOV = 2 * std::atan(std::tan(camera.mHorizontalFOV / camera.mAspect / 2) * camera.mAspect);
    return toCamera(camera);
}

NxRef<NxGroup> SceneBuilder::meshGroup(unsigned int index)
{
    if (index >= m_meshGroups.size() || m_model.mMeshes[index]->mNumVertices == 0)
        return {};
    NxRef<NxGroup>& group = m_meshGroups[index];
    if (group)
        return group;
    const aiMesh& mesh = *m_model.mMeshes[index];
    group = new NxGroup;
    TextureMapping mapping;
    if (mesh.mMaterialIndex < m_materials.size()) {
        group->addChild(material(mesh.mMaterialIndex).get());
        mapping = addTextures(*group, mesh.mMaterialIndex);
    }
    group->addChild(toMesh(mesh, mapping).get());
    return group;
}

NxRef<NxMaterial> SceneBuilder::material(unsigned int index)
{
    NxRef<NxMaterial>& result = m_materials[index];
    if (!result)
        result = toMaterial(*m_model.mMaterials[index]);
    return result;
}

TextureMapping SceneBuilder::addTextures(NxGroup& group, unsigned int materialIndex)
{
    const aiMaterial& material = *m_model.mMaterials[materialIndex];
    std::optional<TextureMapping> mapping;
    for (const NxTexture::Role role : {NxTexture::COLOR, NxTexture::NORMAL, NxTexture::METAL_ROUGHNESS}) {
        // What that format has there may as well be heights.
        const bool isUnclear = role == NxTexture::NORMAL && m_isCollada;
        const NxRef<NxTexture> picture = isUnclear ? NxRef<NxTexture>() : texture(materialIndex, role);
        if (!picture)
            continue;
        // A mesh has one list of texture coordinates.
        const TextureMapping own = textureMapping(material, role);
        if (mapping && !mapping->isLike(own)) {
            m_warnings.add("left out further textures that are placed in another way in the materials",
                toName(material.GetName()).view());
            continue;
        }
        mapping = own;
        group.addChild(picture.get());
    }
    return mapping.value_or(TextureMapping());
}

NxRef<NxTexture> SceneBuilder::texture(unsigned int materialIndex, NxTexture::Role role)
{
    const aiMaterial& material = *m_model.mMaterials[materialIndex];
    const std::string path = texturePath(material, role);
    if (path.empty())
        return {};
    NxRef<NxTexture>& result = m_textures[{
        path, textureWrap(material, 0, role), textureWrap(material, 1, role), isDeclaredOpaque(material), role}];
    if (!result) {
        result = toTexture(material, m_model, role);
        findImage(*result);
    }
    return result;
}

void SceneBuilder::findImage(NxTexture& texture)
{
    const std::string_view path = texture.filePath.getValue().view();
    if (!texture.image.isDefault() || path.empty())
        return;
    if (const std::optional<std::string> found = m_textureFiles.find(path))
        texture.filePath.setValue(VbString(std::string_view(*found)));
    else
        m_warnings.add("didn't find the images", path);
}

} // namespace orvane
