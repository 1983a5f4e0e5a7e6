#include "orvane/import/conversion/ModelBuilder.h"

#include "orvane/import/conversion/CameraConversion.h"
#include "orvane/import/conversion/LightConversion.h"
#include "orvane/import/conversion/MaterialConversion.h"
#include "orvane/import/conversion/MeshConversion.h"
#include "orvane/import/conversion/TransformConversion.h"
#include "orvane/import/mending/Texts.h"
#include "orvane/import/pictures/ImageCodec.h"

#include "meridane/scene/nodes/NxSwitch.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <utility>

namespace orvane {

struct ModelBuilder::Node {
    std::unique_ptr<aiNode> node = std::make_unique<aiNode>();
    std::vector<unsigned int> meshes;
    std::vector<std::unique_ptr<Node>> children;

    // An array that the library deletes.
    std::unique_ptr<aiNode> finish()
    {
        node->mNumMeshes = static_cast<unsigned int>(meshes.size());
        node->mMeshes = meshes.empty() ? nullptr : new unsigned int[meshes.size()];
        std::copy(meshes.begin(), meshes.end(), node->mMeshes);
        node->mNumChildren = static_cast<unsigned int>(children.size());
        node->mChildren = children.empty() ? nullptr : new aiNode*[children.size()]();
        for (std::size_t index = 0; index < children.size(); ++index) {
            node->mChildren[index] = children[index]->finish().release();
            node->mChildren[index]->mParent = node.get();
        }
        return std::move(node);
    }
};

namespace {

template <typename T>
void release(std::vector<std::unique_ptr<T>>& objects, T**& array, unsigned int& count)
{
    array = objects.empty() ? nullptr : new T*[objects.size()];
    count = static_cast<unsigned int>(objects.size());
    for (std::size_t index = 0; index < objects.size(); ++index)
        array[index] = objects[index].release();
}

/// The hash of the bytes in sixteen digits, the same on every machine (FNV-1a).
std::string fingerprintText(std::string_view bytes)
{
    constexpr std::uint64_t start = 0xcbf29ce484222325;
    constexpr std::uint64_t prime = 0x100000001b3;
    constexpr unsigned int digits = 16;
    constexpr unsigned int bitsPerDigit = 4;
    std::uint64_t value = start;
    for (const char byte : bytes)
        value = (value ^ static_cast<unsigned char>(byte)) * prime;
    std::string text;
    for (unsigned int digit = digits; digit-- > 0;)
        text += "0123456789abcdef"[(value >> (bitsPerDigit * digit)) & 0xF];
    return text;
}

bool isShown(const NxGroup& group, int index)
{
    const auto* choice = dynamic_cast<const NxSwitch*>(&group);
    return choice == nullptr || choice->whichChild.getValue() == NxSwitch::ALL
        || choice->whichChild.getValue() == index;
}

} // namespace

ModelBuilder::ModelBuilder(Images images, std::string imageName, MeshesPerNode meshesPerNode)
    : m_images(images)
    , m_imageName(std::move(imageName))
    , m_meshesPerNode(meshesPerNode)
{
}

ModelBuilder::~ModelBuilder() = default;

std::unique_ptr<aiScene> ModelBuilder::build(const NxGroup& scene, std::string& error)
{
    Node root;
    root.node->mName = toAiText(std::string_view("ROOT"));
    m_names.insert("ROOT");
    addChildren(root, scene, {});
    if (m_meshesPerNode == MeshesPerNode::One)
        separateMeshes(root);
    if (m_error.empty() && m_meshes.empty())
        m_error = "the scene has no mesh that could be written";
    if (!m_error.empty()) {
        error = m_error;
        return nullptr;
    }
    auto model = std::make_unique<aiScene>();
    model->mRootNode = root.finish().release();
    release(m_meshes, model->mMeshes, model->mNumMeshes);
    release(m_materials, model->mMaterials, model->mNumMaterials);
    release(m_textures, model->mTextures, model->mNumTextures);
    release(m_lights, model->mLights, model->mNumLights);
    release(m_cameras, model->mCameras, model->mNumCameras);
    return model;
}

void ModelBuilder::addChildren(Node& node, const NxGroup& group, Look look)
{
    for (int index = 0; index < group.getNumChildren() && m_error.empty(); ++index) {
        const NxNode* child = group.getChild(index);
        if (!isShown(group, index))
            continue;
        if (const auto* material = dynamic_cast<const NxMaterial*>(child))
            look.material = material;
        else if (const auto* texture = dynamic_cast<const NxTexture*>(child))
            look.textures[texture->effectiveRole()] = texture;
        else if (const auto* mesh = dynamic_cast<const NxMesh*>(child))
            addMesh(node, *mesh, look);
        else if (const auto* light = dynamic_cast<const NxLight*>(child))
            addLight(node, *light);
        else if (const auto* camera = dynamic_cast<const NxCamera*>(child))
            addCamera(node, *camera);
        else if (const auto* inner = dynamic_cast<const NxGroup*>(child))
            addGroup(node, *inner, look);
    }
}

void ModelBuilder::separateMeshes(Node& node) const
{
    for (const std::unique_ptr<Node>& child : node.children)
        separateMeshes(*child);
    if (node.meshes.size() < 2)
        return;
    std::vector<std::unique_ptr<Node>> holders;
    for (const unsigned int index : node.meshes) {
        Node& holder = *holders.emplace_back(std::make_unique<Node>());
        holder.node->mName = m_meshes[index]->mName;
        holder.meshes.push_back(index);
    }
    node.meshes.clear();
    std::move(node.children.begin(), node.children.end(), std::back_inserter(holders));
    node.children = std::move(holders);
}

void ModelBuilder::addGroup(Node& node, const NxGroup& group, const Look& look)
{
    const aiMatrix4x4 transform = matrixOf(group);
    if (group.getName().isEmpty() && transform == aiMatrix4x4()) {
        addChildren(node, group, look);
        return;
    }
    addChildren(addPlaced(node, group.getName(), "", transform), group, look);
}

void ModelBuilder::addMesh(Node& node, const NxMesh& mesh, const Look& look)
{
    const auto [place, isNew] = m_meshIndices.try_emplace({&mesh, look}, -1);
    if (isNew) {
        std::unique_ptr<aiMesh> made = toAiMesh(mesh, m_error);
        if (made == nullptr)
            return;
        made->mMaterialIndex = materialIndex(look);
        place->second = static_cast<int>(m_meshes.size());
        m_meshes.push_back(std::move(made));
    }
    if (place->second < 0)
        return;
    const auto index = static_cast<unsigned int>(place->second);
    // A node of the library has each mesh once; a second use needs another node.
    const bool isThere = std::find(node.meshes.begin(), node.meshes.end(), index) != node.meshes.end();
    (isThere ? addPlaced(node, VbString(), "", aiMatrix4x4()) : node).meshes.push_back(index);
}

void ModelBuilder::addLight(Node& node, const NxLight& light)
{
    aiMatrix4x4 transform;
    std::unique_ptr<aiLight> made = toAiLight(light, transform);
    if (made == nullptr || light.on.getValue() == 0)
        return;
    // A name that the reader takes for none.
    const std::string otherwise = "lights[" + std::to_string(m_lights.size()) + "]";
    made->mName = addPlaced(node, light.getName(), otherwise.c_str(), transform).node->mName;
    m_lights.push_back(std::move(made));
}

void ModelBuilder::addCamera(Node& node, const NxCamera& camera)
{
    aiMatrix4x4 transform;
    std::unique_ptr<aiCamera> made = toAiCamera(camera, transform);
    if (made == nullptr)
        return;
    const std::string otherwise = "cameras[" + std::to_string(m_cameras.size()) + "]";
    made->mName = addPlaced(node, camera.getName(), otherwise.c_str(), transform).node->mName;
    m_cameras.push_back(std::move(made));
}

ModelBuilder::Node& ModelBuilder::addPlaced(
    Node& node, const VbString& name, const char* otherwise, const aiMatrix4x4& transform)
{
    Node& child = *node.children.emplace_back(std::make_unique<Node>());
    // Lights and cameras refer to their node by name, so these names are unique.
    child.node->mName = *otherwise != '\0' ? toAiText(uniqueName(name, otherwise)) : toAiText(name);
    m_names.emplace(name.view());
    child.node->mTransformation = transform;
    return child;
}

unsigned int ModelBuilder::materialIndex(const Look& look)
{
    const auto [place, isNew] = m_materialIndices.try_emplace(look, static_cast<unsigned int>(m_materials.size()));
    if (isNew) {
        aiMaterial& made = *m_materials.emplace_back(std::make_unique<aiMaterial>());
        setMaterial(made, look.material, look.textures[NxTexture::METAL_ROUGHNESS] != nullptr);
        for (const NxTexture* texture : look.textures) {
            const std::string path = texture == nullptr ? std::string() : picturePath(*texture);
            if (!path.empty())
                setTexture(made, *texture, path);
        }
    }
    return place->second;
}

std::string ModelBuilder::picturePath(const NxTexture& texture)
{
    const auto [place, isNew] = m_picturePaths.try_emplace(&texture, texture.filePath.getValue().view());
    VbVec2s size;
    Picture picture;
    const unsigned char* bytes = texture.image.getValue(size, picture.components);
    if (!isNew || bytes == nullptr || m_images == Images::Nowhere)
        return place->second;
    picture.width = size[0];
    picture.height = size[1];
    const std::size_t pixels = static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height);
    picture.bytes.assign(bytes, bytes + pixels * static_cast<std::size_t>(picture.components));
    std::string file = encodePng(picture);
    if (m_images == Images::Beside) {
        place->second = addImageFile(std::move(file));
        return place->second;
    }
    aiTexture& made = *m_textures.emplace_back(std::make_unique<aiTexture>());
    made.mFilename = toAiText(texture.getName().isEmpty() ? texture.filePath.getValue() : texture.getName());
    made.mWidth = static_cast<unsigned int>(file.size());
    std::strcpy(made.achFormatHint, "png");
    // The library uses its type of a pixel for four bytes of any file.
    made.pcData = new aiTexel[file.size() / sizeof(aiTexel) + 1];
    std::memcpy(made.pcData, file.data(), file.size());
    place->second = "*" + std::to_string(m_textures.size() - 1);
    return place->second;
}

std::string ModelBuilder::addImageFile(std::string bytes)
{
    const std::string stem = m_imageName + "_" + fingerprintText(bytes);
    for (int number = 1;; ++number) {
        std::string name = stem;
        if (number > 1)
            name.append("_").append(std::to_string(number));
        name += ".png";
        const auto present = std::find_if(
            m_imageFiles.begin(), m_imageFiles.end(), [&](const NamedFile& file) { return file.name == name; });
        if (present == m_imageFiles.end()) {
            m_imageFiles.push_back({name, std::move(bytes)});
            return name;
        }
        if (present->bytes == bytes)
            return name;
    }
}

std::string ModelBuilder::uniqueName(const VbString& name, const char* otherwise)
{
    const std::string wanted = name.isEmpty() ? std::string(otherwise) : std::string(name.view());
    std::string result = wanted;
    for (int number = 2; !m_names.insert(result).second; ++number)
        result = wanted + "_" + std::to_string(number);
    return result;
}

} // namespace orvane
